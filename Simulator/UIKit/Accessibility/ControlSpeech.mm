// What views and controls say of themselves.
#include "AccessibilityFrames.h"
#include "DefaultSpeech.h"
#include "GivenProperties.h"
#include "SpokenTexts.hpp"
#include "UIKit/UIKit+Further.h"

namespace {

// Of what a finger presses.
UIAccessibilityTraits controlTraits(UIControl *control, UIAccessibilityTraits kind) {
    if ([control isSelected]) kind |= UIAccessibilityTraitSelected;
    if (![control isEnabled]) kind |= UIAccessibilityTraitNotEnabled;
    return kind;
}

NSString *bullets(NSUInteger count) {
    return [@"" stringByPaddingToLength:count withString:@"•" startingAtIndex:0];
}

} // namespace

@implementation UIView (Speech)
- (CGRect)accessibilityFrame {
    auto given = sim::givenTo(self).frame;
    return given ? *given : sim::accessibilityRect([self bounds], self);
}
@end

@implementation UILabel (Speech)
- (sim::Speech)defaultSpeech {
    return {
        .element = [[self text] length] > 0, .label = [self text], .traits = UIAccessibilityTraitStaticText};
}
@end

@implementation UIImageView (Speech)
- (sim::Speech)defaultSpeech {
    return {.traits = UIAccessibilityTraitImage};
}
@end

@implementation UIButton (Speech)
- (sim::Speech)defaultSpeech {
    return {.element = YES,
            .label = [self currentTitle],
            .traits = controlTraits(self, UIAccessibilityTraitButton)};
}
@end

@implementation UISwitch (Speech)
- (sim::Speech)defaultSpeech {
    return {.element = YES,
            .value = [self isOn] ? @"1" : @"0",
            .traits = controlTraits(self, UIAccessibilityTraitButton)};
}
@end

// What is typed into a secure field is not said.
@implementation UITextField (Speech)
- (sim::Speech)defaultSpeech {
    NSString *text = [self text];
    if ([self isSecureTextEntry]) text = bullets([text length]);
    return {.element = YES,
            .value = [text length] ? text : [self placeholder],
            .traits = controlTraits(self, UIAccessibilityTraitNone)};
}
@end

@implementation UIPageControl (Speech)
- (sim::Speech)defaultSpeech {
    std::string text =
        sim::pageText(static_cast<int>([self currentPage]) + 1, static_cast<int>([self numberOfPages]));
    return {.element = [self numberOfPages] > 0,
            .value = [NSString stringWithUTF8String:text.c_str()],
            .traits = UIAccessibilityTraitAdjustable | UIAccessibilityTraitUpdatesFrequently};
}

- (void)accessibilityIncrement {
    [self turnBy:1];
}
- (void)accessibilityDecrement {
    [self turnBy:-1];
}
- (void)turnBy:(NSInteger)pages {
    NSInteger before = [self currentPage];
    [self setCurrentPage:before + pages];
    if ([self currentPage] != before) [self sendActionsForControlEvents:UIControlEventValueChanged];
}
@end
