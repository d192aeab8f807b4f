// What a finger on the home screen does to the run loop, and the display's turning off to the finger.
#include "Probe/Motion/Motion.h"
#include "Probe/PendixProbe.h"
#include "Probe/Watching/Watching.h"

#include <SpringBoard/SBLockScreen.h>
#include <SpringBoard/SpringBoard.h>
#include <UIKit/UIGestureRecognizerSubclass.h>

// Sees every finger, recognises nothing, and neither prevents others nor is prevented.
@interface ProbeFingers : UIGestureRecognizer
@end

namespace probe {

namespace {

UIScrollView *touched; // retained; the last one around a finger

BOOL isLocked() {
    return [(SBLockScreenManager *)[objc_getClass("SBLockScreenManager") sharedInstance] isUILocked];
}

void remember(UIView *view) {
    while (view && ![view isKindOfClass:[UIScrollView class]]) view = view.superview;
    [view retain];
    [touched release];
    touched = (UIScrollView *)view;
}

NSString *modeName() {
    NSString *mode = [[objc_getClass("NSRunLoop") currentRunLoop] currentMode];
    return [mode isEqual:@"UITrackingRunLoopMode"] ? @"tracking" : @"another";
}

} // namespace

void noteRunLoopMode() {
    if (!touched) return;
    if (touched.decelerating && !touched.tracking) {
        answerLater("run_loop.decelerating", modeName());
    } else if (touched.dragging) {
        answerLater("run_loop.dragged", modeName());
    } else if (touched.tracking) {
        answerLater("run_loop.touched", modeName());
    }
}

void watchFingers() {
    if (!isThere({"SBLockScreenManager", "-isUILocked"})) return;
    UIWindow *home = [[UIApplication sharedApplication] keyWindow];
    ProbeFingers *fingers = [[[ProbeFingers alloc] initWithTarget:nil action:nullptr] autorelease];
    fingers.cancelsTouchesInView = NO;
    fingers.delaysTouchesEnded = NO;
    [home addGestureRecognizer:fingers];
}

} // namespace probe

using namespace probe;

@implementation ProbeFingers

- (void)touchesBegan:(NSSet *)touches withEvent:(UIEvent *)event {
    (void)event;
    remember([(UITouch *)[touches anyObject] view]);
}

- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
    (void)touches, (void)event;
    if (isLocked()) answerLater("display.finger.ending", @"ended");
    [self setState:UIGestureRecognizerStateFailed];
}

- (void)touchesCancelled:(NSSet *)touches withEvent:(UIEvent *)event {
    (void)touches, (void)event;
    [self setState:UIGestureRecognizerStateFailed];
    after(1, ^{
        if (isLocked()) answerLater("display.finger.ending", @"cancelled");
    });
}

- (BOOL)canPreventGestureRecognizer:(UIGestureRecognizer *)other {
    (void)other;
    return NO;
}

- (BOOL)canBePreventedByGestureRecognizer:(UIGestureRecognizer *)other {
    (void)other;
    return NO;
}

@end
