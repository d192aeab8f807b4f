#include "Tweak/Core/Accessibility/Aids.h"

#include <Darwin/dlfcn.h>
#include <UIKit/UIAccessibility.h>
#include <UIKit/UIContentSizeCategory.h>

namespace pendix {

namespace {

// A function that a system may lack.
BOOL answerOf(const char *name) {
    auto *function = reinterpret_cast<BOOL (*)()>(dlsym(RTLD_DEFAULT, name));
    return function && function();
}

CGFloat sizeOf(NSString *style, CGFloat usual) {
    const CGFloat size = [UIFont preferredFontForTextStyle:style].pointSize;
    return size > 0 ? size : usual;
}

} // namespace

BOOL voiceOverRuns() { return UIAccessibilityIsVoiceOverRunning(); }
BOOL reducesMotion() { return answerOf("UIAccessibilityIsReduceMotionEnabled"); }
BOOL reducesTransparency() { return answerOf("UIAccessibilityIsReduceTransparencyEnabled"); }
BOOL darkensColors() { return answerOf("UIAccessibilityDarkerSystemColorsEnabled"); }
BOOL boldensText() { return answerOf("UIAccessibilityIsBoldTextEnabled"); }

CGFloat nameSize() {
    constexpr CGFloat kUsual = 12;
    return sizeOf(UIFontTextStyleCaption1, kUsual);
}

BOOL wantsHugeText() {
    NSString *category = [[UIApplication sharedApplication] preferredContentSizeCategory];
    return category && [category rangeOfString:@"Accessibility"].location != NSNotFound;
}

CGFloat textScale() {
    constexpr CGFloat kUsual = 17;
    return sizeOf(UIFontTextStyleBody, kUsual) / kUsual;
}

UIFont *textFont(NSString *name, CGFloat size) {
    struct {
        NSString *font, *heavier;
    } const weights[] = {{@"HelveticaNeue-Light", @"HelveticaNeue-Medium"},
                         {@"HelveticaNeue", @"HelveticaNeue-Bold"}};
    if (boldensText())
        for (const auto &weight : weights)
            if ([weight.font isEqualToString:name]) name = weight.heavier;
    return [UIFont fontWithName:name size:size];
}

} // namespace pendix
