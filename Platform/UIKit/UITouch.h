// Fingers on the screen, and the events that tell of them.
#pragma once

#include <UIKit/UIGeometry.h>

@class UIView, UIWindow;

typedef NSInteger UITouchPhase;
enum {
    UITouchPhaseBegan = 0,
    UITouchPhaseMoved = 1,
    UITouchPhaseStationary = 2,
    UITouchPhaseEnded = 3,
    UITouchPhaseCancelled = 4
};

@interface UITouch : NSObject {
@public
    void *_touchState;
}
@property (nonatomic, readonly, retain) UIView *view;
@property (nonatomic, readonly, retain) UIWindow *window;
@property (nonatomic, readonly, copy) NSArray *gestureRecognizers;
// In the coordinates of `view`; of the window when it is nil.
- (CGPoint)locationInView:(UIView *)view;
@end

@interface UIEvent : NSObject {
@public
    void *_eventState;
}
@end
