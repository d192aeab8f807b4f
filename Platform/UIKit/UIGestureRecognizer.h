// Gestures: taps, long presses, pans and swipes.
#pragma once

#include <UIKit/UIView.h>

@class UITouch;
@protocol UIGestureRecognizerDelegate;

typedef NSInteger UIGestureRecognizerState;
enum {
    UIGestureRecognizerStatePossible = 0,
    UIGestureRecognizerStateBegan = 1,
    UIGestureRecognizerStateChanged = 2,
    UIGestureRecognizerStateEnded = 3,
    UIGestureRecognizerStateRecognized = 3,
    UIGestureRecognizerStateCancelled = 4,
    UIGestureRecognizerStateFailed = 5
};

// Targets and delegates are not retained.
@interface UIGestureRecognizer : NSObject {
@public
    void *_recognizerState;
}
- (instancetype)initWithTarget:(id)target action:(SEL)action;
- (void)addTarget:(id)target action:(SEL)action;
- (void)removeTarget:(id)target action:(SEL)action;
@property (nonatomic, readonly) UIGestureRecognizerState state;
@property (nonatomic, assign) id<UIGestureRecognizerDelegate> delegate;
@property (nonatomic, getter=isEnabled) BOOL enabled;
@property (nonatomic, readonly) UIView *view;
@property (nonatomic) BOOL cancelsTouchesInView;
- (void)requireGestureRecognizerToFail:(UIGestureRecognizer *)other;
- (CGPoint)locationInView:(UIView *)view;
@property (nonatomic) BOOL delaysTouchesEnded;
@end

@protocol UIGestureRecognizerDelegate <NSObject>
@optional
- (BOOL)gestureRecognizerShouldBegin:(UIGestureRecognizer *)recognizer;
- (BOOL)gestureRecognizer:(UIGestureRecognizer *)recognizer
    shouldRecognizeSimultaneouslyWithGestureRecognizer:(UIGestureRecognizer *)other;
- (BOOL)gestureRecognizer:(UIGestureRecognizer *)recognizer shouldReceiveTouch:(UITouch *)touch;
@end

@interface UITapGestureRecognizer : UIGestureRecognizer {
@public
    void *_tapState;
}
@property (nonatomic) NSUInteger numberOfTapsRequired;
@end

@interface UILongPressGestureRecognizer : UIGestureRecognizer {
@public
    void *_longPressState;
}
@property (nonatomic) CFTimeInterval minimumPressDuration; // seconds; 0.5
@property (nonatomic) CGFloat allowableMovement;           // points; 10
@end

@interface UIPanGestureRecognizer : UIGestureRecognizer {
@public
    void *_panState;
}
@end

typedef NSUInteger UISwipeGestureRecognizerDirection;
enum {
    UISwipeGestureRecognizerDirectionRight = 1 << 0,
    UISwipeGestureRecognizerDirectionLeft = 1 << 1,
    UISwipeGestureRecognizerDirectionUp = 1 << 2,
    UISwipeGestureRecognizerDirectionDown = 1 << 3
};

@interface UISwipeGestureRecognizer : UIGestureRecognizer {
@public
    void *_swipeState;
}
@property (nonatomic) UISwipeGestureRecognizerDirection direction; // right
@end
