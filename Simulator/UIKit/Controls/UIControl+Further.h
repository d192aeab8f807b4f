// What the platform has beyond <UIKit/UIControl.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UIControl.h>

@interface UIControl (Further)
@property (nonatomic, getter=isSelected) BOOL selected;
- (void)sendActionsForControlEvents:(UIControlEvents)events;
// Sends to the first responder from the control up that answers, when `target` is nil.
- (void)sendAction:(SEL)action to:(id)target forEvent:(UIEvent *)event;
@property (nonatomic, readonly, getter=isTracking) BOOL tracking;
@property (nonatomic, readonly, getter=isTouchInside) BOOL touchInside;
// For subclasses: a touch from its begin to its end or cancellation. NO stops following it.
- (BOOL)beginTrackingWithTouch:(UITouch *)touch withEvent:(UIEvent *)event;
- (BOOL)continueTrackingWithTouch:(UITouch *)touch withEvent:(UIEvent *)event;
- (void)endTrackingWithTouch:(UITouch *)touch withEvent:(UIEvent *)event;
- (void)cancelTrackingWithEvent:(UIEvent *)event;
@end

@interface UIButton (Further)
- (NSString *)titleForState:(UIControlState)state;
- (UIColor *)titleColorForState:(UIControlState)state;
@property (nonatomic, readonly, retain) UILabel *titleLabel;
@property (nonatomic, readonly, retain) NSString *currentTitle;
@end
