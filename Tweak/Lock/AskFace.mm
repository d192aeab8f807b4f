// The face that only tells how much is waiting behind the lock.
#include "Tweak/Core/Accessibility/Wording.h"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Lock/FaceLayout.hpp"
#include "Tweak/Lock/FaceParts.h"
#include "Tweak/Lock/SpringBoard+Lock.h"

namespace pendix {

namespace {

constexpr NSInteger kMessageLines = 4;

} // namespace

UIView *addAskFace(const LockFacesInput &input) {
    UIView *face = addFace(input, tags::askFace, 0);
    UILabel *text =
        addFaceText(face, CGRectZero, waitingText(input.count, input.running), kMessageLines, input.scheme);
    constexpr CGFloat kAnyHeight = 1000;
    const CGSize fitting = [text sizeThatFits:CGSizeMake(input.width, kAnyHeight)];
    const AskLayout layout = askLayout(static_cast<Real>(input.width), static_cast<Real>(fitting.height));
    text.frame = toCGRect(layout.message);
    setHeight(face, layout.height);
    addFaceButton(face, input, toCGRect(layout.button), @"unlock", @selector(unlockTap:)).tag =
        tags::faceButton;
    return face;
}

} // namespace pendix
