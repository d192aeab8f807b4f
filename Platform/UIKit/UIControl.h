// Views that send actions to targets, and the button among them.
#pragma once

#include <UIKit/UILabel.h>
#include <UIKit/UIView.h>

@class UITouch;

typedef NSUInteger UIControlEvents;
enum {
    UIControlEventTouchDown = 1 << 0,
    UIControlEventTouchDownRepeat = 1 << 1,
    UIControlEventTouchDragInside = 1 << 2,
    UIControlEventTouchDragOutside = 1 << 3,
    UIControlEventTouchDragEnter = 1 << 4,
    UIControlEventTouchDragExit = 1 << 5,
    UIControlEventTouchUpInside = 1 << 6,
    UIControlEventTouchUpOutside = 1 << 7,
    UIControlEventTouchCancel = 1 << 8,
    UIControlEventValueChanged = 1 << 12,
    UIControlEventEditingChanged = 1 << 17
};

typedef NSUInteger UIControlState;
enum {
    UIControlStateNormal = 0,
    UIControlStateHighlighted = 1 << 0,
    UIControlStateDisabled = 1 << 1,
    UIControlStateSelected = 1 << 2
};

// Targets are not retained. Actions take no argument, the control, or the control and the event.
@interface UIControl : UIView {
@public
    void *_controlState;
}
@property (nonatomic, getter=isEnabled) BOOL enabled;
@property (nonatomic, getter=isHighlighted) BOOL highlighted;
@property (nonatomic, readonly) UIControlState state;
- (void)addTarget:(id)target action:(SEL)action forControlEvents:(UIControlEvents)events;
- (void)removeTarget:(id)target action:(SEL)action forControlEvents:(UIControlEvents)events;
@end

typedef NSInteger UIButtonType;
enum { UIButtonTypeCustom = 0, UIButtonTypeSystem = 1 };

@interface UIButton : UIControl {
@public
    void *_buttonState;
}
- (void)setTitle:(NSString *)title forState:(UIControlState)state;
- (void)setTitleColor:(UIColor *)color forState:(UIControlState)state;
+ (instancetype)buttonWithType:(UIButtonType)type;
@end
