// Views: geometry, hierarchy, rendering and animation.
#pragma once

#include <QuartzCore/QuartzCore.h>
#include <UIKit/UIColor.h>
#include <UIKit/UIResponder.h>

@class UIGestureRecognizer, UIWindow;

typedef NSInteger UIViewContentMode;
enum {
    UIViewContentModeScaleToFill = 0,
    UIViewContentModeScaleAspectFit = 1,
    UIViewContentModeScaleAspectFill = 2,
    UIViewContentModeRedraw = 3,
    UIViewContentModeCenter = 4,
    UIViewContentModeTop = 5,
    UIViewContentModeBottom = 6,
    UIViewContentModeLeft = 7,
    UIViewContentModeRight = 8,
    UIViewContentModeTopLeft = 9,
    UIViewContentModeTopRight = 10,
    UIViewContentModeBottomLeft = 11,
    UIViewContentModeBottomRight = 12
};

typedef NSUInteger UIViewAutoresizing;
enum {
    UIViewAutoresizingNone = 0,
    UIViewAutoresizingFlexibleLeftMargin = 1,
    UIViewAutoresizingFlexibleWidth = 2,
    UIViewAutoresizingFlexibleRightMargin = 4,
    UIViewAutoresizingFlexibleTopMargin = 8,
    UIViewAutoresizingFlexibleHeight = 16,
    UIViewAutoresizingFlexibleBottomMargin = 32
};

typedef NSUInteger UIViewAnimationOptions;
enum {
    UIViewAnimationOptionAllowUserInteraction = 1 << 1,
    UIViewAnimationOptionBeginFromCurrentState = 1 << 2,
    UIViewAnimationOptionRepeat = 1 << 3,
    UIViewAnimationOptionAutoreverse = 1 << 4,
    UIViewAnimationOptionCurveEaseInOut = 0 << 16,
    UIViewAnimationOptionCurveEaseIn = 1 << 16,
    UIViewAnimationOptionCurveEaseOut = 2 << 16,
    UIViewAnimationOptionCurveLinear = 3 << 16
};

// Frames and bounds are in points.
@interface UIView : UIResponder {
@public
    void *_viewState;
}
- (instancetype)initWithFrame:(CGRect)frame;
@property (nonatomic, readonly, retain) CALayer *layer;
@property (nonatomic) NSInteger tag;
@property (nonatomic, getter=isUserInteractionEnabled) BOOL userInteractionEnabled;
@end

@interface UIView (UIViewGeometry)
@property (nonatomic) CGRect frame;
@property (nonatomic) CGRect bounds;
@property (nonatomic) CGPoint center;
@property (nonatomic) CGAffineTransform transform;
@property (nonatomic) UIViewAutoresizing autoresizingMask;
- (CGRect)convertRect:(CGRect)rect toView:(UIView *)view;
- (UIView *)hitTest:(CGPoint)point withEvent:(UIEvent *)event;
- (CGSize)sizeThatFits:(CGSize)size;
- (void)sizeToFit;
- (CGPoint)convertPoint:(CGPoint)point toView:(UIView *)view;
- (CGPoint)convertPoint:(CGPoint)point fromView:(UIView *)view;
- (BOOL)pointInside:(CGPoint)point withEvent:(UIEvent *)event;
@end

@interface UIView (UIViewHierarchy)
@property (nonatomic, readonly) UIView *superview;
@property (nonatomic, readonly) UIWindow *window;
@property (nonatomic, readonly, copy) NSArray *subviews;
- (void)addSubview:(UIView *)view;
- (void)bringSubviewToFront:(UIView *)view;
- (void)removeFromSuperview;
// The view itself or the first descendant with the tag, depth first; nil when there is none.
- (UIView *)viewWithTag:(NSInteger)tag;
- (void)didMoveToWindow;
- (void)layoutIfNeeded;
- (void)layoutSubviews;
- (void)insertSubview:(UIView *)view atIndex:(NSInteger)index;
@end

@interface UIView (UIViewRendering)
@property (nonatomic) CGFloat alpha;
@property (nonatomic, getter=isHidden) BOOL hidden;
@property (nonatomic, getter=isOpaque) BOOL opaque;
@property (nonatomic) BOOL clipsToBounds;
@property (nonatomic, copy) UIColor *backgroundColor;
// nil inherits the superview's.
@property (nonatomic, retain) UIColor *tintColor;
@property (nonatomic) UIViewContentMode contentMode;
@end

@interface UIView (UIViewGestureRecognizers)
@property (nonatomic, copy) NSArray *gestureRecognizers;
- (void)addGestureRecognizer:(UIGestureRecognizer *)recognizer;
- (void)removeGestureRecognizer:(UIGestureRecognizer *)recognizer;
@end

// Durations are in seconds. The completion gets NO when the animation was cut short.
@interface UIView (UIViewAnimationWithBlocks)
+ (void)animateWithDuration:(NSTimeInterval)duration animations:(void (^)(void))animations;
+ (void)animateWithDuration:(NSTimeInterval)duration
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL finished))completion;
+ (void)animateWithDuration:(NSTimeInterval)duration
                      delay:(NSTimeInterval)delay
                    options:(UIViewAnimationOptions)options
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL finished))completion;
@end
