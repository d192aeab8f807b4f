// What the platform has beyond <UIKit/UIGestureRecognizer.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UIGestureRecognizer.h>

@interface UIGestureRecognizer (Further)
@property (nonatomic) BOOL delaysTouchesBegan;
- (NSUInteger)numberOfTouches;
@end

@interface UITapGestureRecognizer (Further)
@property (nonatomic) NSUInteger numberOfTouchesRequired;
@end

@interface UIPanGestureRecognizer (Further)
@property (nonatomic) NSUInteger minimumNumberOfTouches;
@property (nonatomic) NSUInteger maximumNumberOfTouches;
- (CGPoint)translationInView:(UIView *)view;
- (void)setTranslation:(CGPoint)translation inView:(UIView *)view;
- (CGPoint)velocityInView:(UIView *)view; // points a second
@end

@interface UISwipeGestureRecognizer (Further)
@property (nonatomic) NSUInteger numberOfTouchesRequired;
@end
