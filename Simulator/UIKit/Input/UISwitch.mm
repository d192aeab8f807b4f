#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"
#include "UISwitch+Further.h"

#include <UIKit/UISwitch.h>
#include <UIKit/UITouch.h>

#include <cmath>

namespace {

constexpr CGSize kSize = {51, 31};
constexpr CGFloat kThumb = 28, kMargin = 1.5, kBorder = 1.5;
constexpr CGFloat kStretch = 7; // of the thumb under a finger
constexpr double kSeconds = 0.25;
// A finger that has moved this far sideways means the side on which it lifts. Inferred.
constexpr CGFloat kSwipe = 4;

struct SwitchState {
    bool on = false;
    UIColor *onTint = nil, *thumbTint = nil; // retained
    UIView *track = nil, *thumb = nil;       // retained by the view
    CGFloat touchStart = 0;
};

SwitchState &state(UISwitch *view) { return sim::lazyState<SwitchState>(view->_switchState); }

UIColor *systemGreen() {
    return [UIColor colorWithRed:76 / 255.0 green:217 / 255.0 blue:100 / 255.0 alpha:1];
}

CGRect thumbFrame(bool on, bool held) {
    CGFloat width = kThumb + (held ? kStretch : 0);
    return CGRectMake(on ? kSize.width - kMargin - width : kMargin, kMargin, width, kThumb);
}

void refresh(UISwitch *view) {
    auto &mine = state(view);
    UIColor *off = [UIColor colorWithWhite:229 / 255.0 alpha:1];
    [mine.track setBackgroundColor:mine.on ? (mine.onTint ? mine.onTint : systemGreen()) : nil];
    [[mine.track layer] setBorderColor:mine.on ? [[UIColor clearColor] CGColor] : [off CGColor]];
    [mine.thumb setBackgroundColor:mine.thumbTint ? mine.thumbTint : [UIColor whiteColor]];
    [mine.thumb setFrame:thumbFrame(mine.on, [view isTracking])];
    [view setAlpha:[view isEnabled] ? 1 : 0.5];
}

void refresh(UISwitch *view, bool animated) {
    if (!animated || ![view window]) return refresh(view);
    [UIView animateWithDuration:kSeconds animations:^{ refresh(view); }];
}

UIView *makePart(UISwitch *view, CGRect frame, CGFloat radius) {
    UIView *part = [[[UIView alloc] initWithFrame:frame] autorelease];
    [part setUserInteractionEnabled:NO];
    [[part layer] setCornerRadius:radius];
    [view addSubview:part];
    return part;
}

} // namespace

@implementation UISwitch

- (instancetype)initWithFrame:(CGRect)frame {
    if (!(self = [super initWithFrame:{frame.origin, kSize}])) return nil;
    auto &mine = state(self);
    mine.track = makePart(self, {CGPointZero, kSize}, kSize.height / 2);
    [mine.track setClipsToBounds:YES];
    [[mine.track layer] setBorderWidth:kBorder];
    mine.thumb = makePart(self, thumbFrame(false, false), kThumb / 2);
    CALayer *layer = [mine.thumb layer];
    [layer setShadowOpacity:0.3];
    [layer setShadowOffset:{0, 2}];
    [layer setShadowRadius:2];
    [self setOpaque:NO];
    refresh(self);
    return self;
}

- (void)dealloc {
    [state(self).onTint release];
    [state(self).thumbTint release];
    delete &state(self);
    [super dealloc];
}

- (void)setFrame:(CGRect)frame {
    [super setFrame:{frame.origin, kSize}];
}
- (CGSize)sizeThatFits:(CGSize)size {
    return kSize;
}

- (BOOL)isOn {
    return state(self).on;
}
- (void)setOn:(BOOL)on {
    [self setOn:on animated:NO];
}
- (void)setOn:(BOOL)on animated:(BOOL)animated {
    state(self).on = on;
    refresh(self, animated);
}

- (UIColor *)onTintColor {
    return state(self).onTint;
}
- (void)setOnTintColor:(UIColor *)color {
    sim::retainInto(state(self).onTint, color);
    refresh(self);
}

- (UIColor *)thumbTintColor {
    return state(self).thumbTint;
}
- (void)setThumbTintColor:(UIColor *)color {
    sim::retainInto(state(self).thumbTint, color);
    refresh(self);
}

- (void)setEnabled:(BOOL)enabled {
    [super setEnabled:enabled];
    refresh(self);
}

- (BOOL)beginTrackingWithTouch:(UITouch *)touch withEvent:(UIEvent *)event {
    state(self).touchStart = [touch locationInView:self].x;
    UIView *thumb = state(self).thumb;
    bool on = state(self).on;
    [UIView animateWithDuration:kSeconds animations:^{ [thumb setFrame:thumbFrame(on, true)]; }];
    return YES;
}

- (void)endTrackingWithTouch:(UITouch *)touch withEvent:(UIEvent *)event {
    CGFloat x = [touch locationInView:self].x;
    bool swiped = std::fabs(x - state(self).touchStart) > kSwipe;
    bool was = state(self).on;
    bool on = swiped ? x > kSize.width / 2 : !was;
    [self setOn:on animated:YES];
    if (on != was) [self sendActionsForControlEvents:UIControlEventValueChanged];
}

- (void)cancelTrackingWithEvent:(UIEvent *)event {
    refresh(self, true);
}

@end
