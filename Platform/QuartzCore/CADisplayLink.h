// Calls at each frame of the screen, in the run-loop modes that it is added for.
#pragma once

#include <QuartzCore/CAAnimation.h>

// Calls its target before each frame of the display while the run loop is in one of its modes. Target and
// link are retained until it is invalidated or in no mode any more.
@interface CADisplayLink : NSObject {
@public
    void *_displayLinkState;
}
+ (CADisplayLink *)displayLinkWithTarget:(id)target selector:(SEL)selector;
- (void)addToRunLoop:(NSRunLoop *)loop forMode:(NSString *)mode;
- (void)removeFromRunLoop:(NSRunLoop *)loop forMode:(NSString *)mode;
- (void)invalidate;
@property (nonatomic, readonly)
    CFTimeInterval timestamp; // of the frame that it was called for; 0 before the first
@property (nonatomic, readonly) CFTimeInterval duration; // of a frame, in seconds
@property (nonatomic, getter=isPaused) BOOL paused;
@property (nonatomic) NSInteger frameInterval; // frames from one call to the next; 1 at first
@end
