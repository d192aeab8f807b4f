#include "PendixSettings/Passcode/PasscodeView.h"

#include "PendixSettings/Core/PaneTranslator.h"
#include "PendixSettings/Passcode/DigitEntry.hpp"
#include "PendixSettings/Passcode/PasscodeSheet.h"
#include "Tweak/Core/Accessibility/Aids.h"
#include "Tweak/Core/Accessibility/Speech.h"
#include "Tweak/Core/Accessibility/Wording.h"
#include "Tweak/Core/Names.h"

namespace pane = pendix::pane;

namespace {

constexpr CGFloat kTextSize = 16, kFieldSide = 10;
constexpr CGFloat kMostSize = 22; // that the screen's width holds

void setOrigin(UIView *view, CGFloat x, CGFloat y) {
    const CGSize size = view.frame.size;
    view.frame = CGRectMake(x, y, size.width, size.height);
}

} // namespace

@implementation PasscodeView

@synthesize group = _group;

- (void)addGroup:(NSString *)text {
    UILabel *label = [[UILabel alloc] initWithFrame:CGRectZero];
    label.text = text;
    const CGFloat size = kTextSize * pendix::textScale();
    label.font = pendix::textFont(@"HelveticaNeue-Light", size < kMostSize ? size : kMostSize);
    [label sizeToFit];
    [self addSubview:label];
    [label release];
    UIImage *image = [UIImage imageWithContentsOfFile:pendix::names::supportFile(pane::kDash)];
    for (size_t i = 0; i < pane::kDigits; ++i) {
        UIImageView *dash =
            [[UIImageView alloc] initWithFrame:CGRectMake(0, 0, image.size.width, image.size.height)];
        dash.image = image;
        dash.backgroundColor = [UIColor clearColor];
        [self addSubview:dash];
        [dash release];
    }
}

- (void)addFieldFor:(id)target action:(SEL)typed {
    UITextField *field = [[UITextField alloc] initWithFrame:CGRectMake(0, 0, kFieldSide, kFieldSide)];
    field.keyboardType = UIKeyboardTypeNumberPad;
    [field addTarget:target action:typed forControlEvents:UIControlEventEditingChanged];
    [self addSubview:field];
    _first = _group;
    [self placeGroups];
    [field becomeFirstResponder];
    [field release];
}

- (void)layoutSubviews {
    [super layoutSubviews];
    [self placeGroups];
}

- (void)placeGroups {
    NSArray *views = self.subviews;
    const NSInteger groups = static_cast<NSInteger>([views count] / pane::kGroupSize);
    for (NSInteger group = 0; group < groups; ++group)
        [self place:group screen:(group > _group) - (group < _group) of:views];
    // Outside what is seen.
    setOrigin([views lastObject], self.frame.size.width, self.frame.size.height);
}

// Screen 0 is the middle, 1 one screen to the right, -1 to the left.
- (void)place:(NSInteger)group screen:(int)screen of:(NSArray *)views {
    const NSUInteger first = static_cast<NSUInteger>(group) * pane::kGroupSize;
    const CGFloat width = self.frame.size.width, below = self.frame.size.height - [self barHeight];
    UIView *text = [views objectAtIndex:first];
    const CGSize size = text.frame.size;
    const CGFloat left = (width - size.width) * 0.5 + screen * width;
    setOrigin(text, left, (below + size.height) * 0.25);
    for (size_t i = 0; i < pane::kDigits; ++i) {
        UIView *dash = [views objectAtIndex:first + 1 + i];
        const CGSize own = dash.frame.size;
        setOrigin(dash, left + static_cast<CGFloat>(i) * (size.width - own.width) / 3,
                  (below + own.height) * 3 * 0.125);
    }
}

- (BOOL)isAccessibilityElement {
    return YES;
}

- (UIAccessibilityTraits)accessibilityTraits {
    return UIAccessibilityTraitStaticText;
}

- (NSString *)accessibilityLabel {
    NSArray *views = self.subviews;
    const NSUInteger text = static_cast<NSUInteger>(_group) * pane::kGroupSize;
    return text < [views count] ? [(UILabel *)[views objectAtIndex:text] text] : nil;
}

- (NSString *)accessibilityValue {
    UITextField *field = [self.subviews lastObject];
    if (![field isKindOfClass:[UITextField class]]) return nil;
    NSString *entered = pendix::filledIn(pane::Translator(@"spoken_entered"),
                                         pendix::digits(static_cast<NSInteger>([field.text length])),
                                         pendix::digits(static_cast<NSInteger>(pane::kDigits)));
    const NSInteger groups = static_cast<NSInteger>([self.subviews count] / pane::kGroupSize) - _first;
    if (groups < 2) return entered;
    NSString *step = pendix::filledIn(pane::Translator(@"spoken_step"), pendix::digits(_group - _first + 1),
                                      pendix::digits(groups));
    return [NSString stringWithFormat:@"%@, %@", step, entered];
}

- (void)takeFocus {
    if (!pendix::voiceOverRuns()) return;
    [NSTimer scheduledTimerWithTimeInterval:0 target:self selector:@selector(focus:) userInfo:nil repeats:NO];
}

- (void)focus:(NSTimer *)timer {
    pendix::focusOnScreen(self);
}

// The group that is typed, from its text to its digits.
- (CGRect)accessibilityFrame {
    NSArray *views = self.subviews;
    const NSUInteger first = static_cast<NSUInteger>(_group) * pane::kGroupSize;
    if (first + pane::kDigits >= [views count]) return CGRectZero;
    const CGRect text = [(UIView *)[views objectAtIndex:first] frame],
                 digit = [(UIView *)[views objectAtIndex:first + pane::kDigits] frame];
    const CGRect group =
        CGRectMake(text.origin.x, text.origin.y, text.size.width, CGRectGetMaxY(digit) - text.origin.y);
    return UIAccessibilityConvertFrameToScreenCoordinates(group, self);
}

- (CGFloat)barHeight {
    UIViewController *page = (UIViewController *)self.nextResponder;
    return page.navigationController.navigationBar.frame.size.height;
}

@end
