// The face that only tells how much is waiting behind the lock.
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Core/Translator.h"
#include "Tweak/Lock/FaceLayout.hpp"
#include "Tweak/Lock/FaceParts.h"
#include "Tweak/Lock/SpringBoard+Lock.h"

namespace pendix {

namespace {

constexpr NSInteger kMessageLines = 4;

// The number stands where the text says "%d". A text comes from a file and is never a format itself.
NSString *withNumber(NSString *text, int number) {
    if (!text) return nil;
    const NSRange place = [text rangeOfString:@"%d"];
    if (place.location == NSNotFound) return text;
    return [NSString stringWithFormat:@"%@%d%@", [text substringToIndex:place.location], number,
                                      [text substringFromIndex:place.location + place.length]];
}

NSString *message(int count, BOOL running) {
    if (count == 0) return Translator(running ? @"no_running_apps" : @"no_badge");
    if (count == 1) return Translator(running ? @"one_app" : @"one_badge");
    return withNumber(Translator(running ? @"you_have_app" : @"you_have_badge"), count);
}

} // namespace

UIView *addAskFace(const LockFacesInput &input) {
    UIView *face = addFace(input, tags::askFace, 0);
    UILabel *text =
        addFaceText(face, CGRectZero, message(input.count, input.running), kMessageLines, input.scheme);
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
