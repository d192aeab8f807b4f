#include "PendixSettings/Icon/Card.h"

#include "PendixSettings/Core/PaneState.h"
#include "PendixSettings/Core/PaneTranslator.h"
#include "PendixSettings/Icon/ColorNames.h"
#include "Tweak/Core/Accessibility/Aids.h"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/Screen.h"
#include "Tweak/Core/Settings.h"

#include <math.h>

namespace pendix::pane {

namespace {

constexpr NSInteger kSwatch = 2, kHint = 4; // tags
constexpr CGFloat kCornerRadius = 40;
constexpr CGFloat kBelowPreview = 100, kHintLift = 150, kHintHeight = 30;
constexpr float kPadNarrower = 70;

// White runs back into black.
size_t nextColor(size_t index) { return index + 1 < colorNames().size() ? index + 1 : index - 1; }

UIView *newSwatch(UIColor *cardColor) {
    UIView *swatch = [[UIView alloc] initWithFrame:CGRectMake((width - 1) * 0.5, (height - 1) * 0.5, 1, 1)];
    swatch.backgroundColor = cardColor;
    swatch.tag = kSwatch;
    return swatch;
}

UILabel *newHint() {
    UILabel *hint =
        [[UILabel alloc] initWithFrame:CGRectMake(0, (height - kHintLift) * 0.5, width, kHintHeight)];
    hint.tag = kHint;
    hint.textAlignment = NSTextAlignmentCenter;
    constexpr CGFloat kSize = 18, kMost = 24; // what the line holds
    const CGFloat size = kSize * textScale();
    hint.font = textFont(@"HelveticaNeue-Light", size < kMost ? size : kMost);
    hint.text = shownText(@"slide");
    hint.textColor = color;
    return hint;
}

UIView *newFace(size_t index, CGFloat left) {
    UIView *face = [[UIView alloc] initWithFrame:CGRectMake(left, 0, width, height * 3)];
    face.layer.masksToBounds = YES;
    face.layer.cornerRadius = kCornerRadius;
    CAGradientLayer *gradient = [CAGradientLayer layer];
    gradient.frame = CGRectMake(0, 0, width, height - kBelowPreview);
    gradient.colors = [NSArray arrayWithObjects:(id)colorFrom(colorNames()[index]).CGColor,
                                                (id)colorFrom(colorNames()[nextColor(index)]).CGColor, nil];
    [face.layer insertSublayer:gradient atIndex:0];
    return face;
}

UIView *hintOf(UIViewController *card) { return [card.view viewWithTag:kHint]; }

} // namespace

CardLayout fitCards() {
    if (!isPad()) return {.correction = -2, .pageLeft = 0, .cardLeft = 0};
    width -= kPadNarrower;
    return {.correction = -32, .pageLeft = -56, .cardLeft = 35};
}

UIViewController *newCard(size_t index, const CardLayout &layout) {
    UIViewController *card = [UIViewController new];
    card.view.backgroundColor = color;
    UIView *swatch = newSwatch(colorFrom(colorNames()[index])), *face = newFace(index, layout.cardLeft);
    UILabel *hint = newHint();
    [card.view addSubview:swatch];
    [card.view addSubview:face];
    [face addSubview:hint];
    [swatch release];
    [face release];
    [hint release];
    blinkHint(card);
    return card;
}

UIColor *colorOfCard(UIViewController *card) { return subviewWithTag(card.view, kSwatch).backgroundColor; }

void blinkHint(UIViewController *card) {
    NSString *const key = @"opacity";
    CALayer *layer = hintOf(card).layer;
    if ([layer animationForKey:key]) return;
    CABasicAnimation *blink = [CABasicAnimation animationWithKeyPath:key];
    blink.fromValue = [NSNumber numberWithFloat:1];
    blink.toValue = [NSNumber numberWithFloat:0];
    blink.duration = 1;
    blink.autoreverses = YES;
    blink.repeatCount = HUGE_VALF;
    [layer addAnimation:blink forKey:key];
}

} // namespace pendix::pane
