// What the platform has beyond <UIKit/UIView.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UIView.h>

@interface UIView (Further)
+ (Class)layerClass;
@property (nonatomic) CGFloat contentScaleFactor;
@property (nonatomic, getter=isMultipleTouchEnabled) BOOL multipleTouchEnabled;
@property (nonatomic, getter=isExclusiveTouch) BOOL exclusiveTouch;
@property (nonatomic) BOOL autoresizesSubviews;
- (CGRect)convertRect:(CGRect)rect fromView:(UIView *)view;
- (void)insertSubview:(UIView *)view belowSubview:(UIView *)sibling;
- (void)insertSubview:(UIView *)view aboveSubview:(UIView *)sibling;
- (void)sendSubviewToBack:(UIView *)view;
- (BOOL)isDescendantOfView:(UIView *)view;
- (void)willMoveToSuperview:(UIView *)superview;
- (void)didMoveToSuperview;
- (void)willMoveToWindow:(UIWindow *)window;
- (void)setNeedsLayout;
- (void)setNeedsDisplay;
- (void)tintColorDidChange;
+ (void)performWithoutAnimation:(void (^)(void))actions;
@end
