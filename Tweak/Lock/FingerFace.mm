// The Touch ID face, as it is built.
#include "Tweak/Core/State.h"
#include "Tweak/Core/Support/UIView+Shimmer.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Core/Translator.h"
#include "Tweak/Lock/FaceLayout.hpp"
#include "Tweak/Lock/FaceParts.h"
#include "Tweak/Lock/Lock.h"
#include "Tweak/Lock/SpringBoard+Lock.h"

#include <PassKit/PKGlyphView.h>

namespace pendix {

namespace {

constexpr NSInteger kTitleLines = 2;
constexpr CGFloat kSecondaryWhite = 0.3;

// A system without such a glyph leaves its place empty; the face listens all the same.
void addGlyph(UIView *face, CGRect frame, const Scheme &scheme) {
    PKGlyphView *glyph = [[objc_getClass("PKGlyphView") alloc] initWithStyle:PKGlyphViewStyleDefault];
    if (!glyph) return;
    glyph.frame = frame;
    glyph.tag = tags::glyph;
    glyph.secondaryColor = [UIColor colorWithWhite:kSecondaryWhite alpha:1];
    glyph.primaryColor = scheme.ink;
    [face addSubview:glyph];
    [glyph startShimmering];
    [glyph release];
}

} // namespace

UIView *addFingerFace(const LockFacesInput &input) {
    const FingerLayout layout = fingerLayout(static_cast<Real>(input.width));
    UIView *face = addFace(input, tags::fingerFace, layout.height);
    addFaceText(face, toCGRect(layout.title), Translator(@"unlock_touchid"), kTitleLines, input.scheme);
    addGlyph(face, toCGRect(layout.glyph), input.scheme);
    addFaceButton(face, input, toCGRect(layout.cancel), @"cancel", @selector(dismisPendixUI)).tag =
        tags::fingerCancel;
    addFaceButton(face, input, toCGRect(layout.passcode), @"passcode", @selector(usePasscode)).tag =
        tags::fingerPasscode;
    lastHeight = static_cast<float>(layout.height);
    return face;
}

} // namespace pendix
