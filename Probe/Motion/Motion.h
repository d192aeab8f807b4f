// Questions whose answers take time: how the system animates, and what it tells when.
#pragma once

#include "Probe/Question.h"

#include <UIKit/UIKit.h>

namespace probe {

struct Motion {
    const char *name;
    void (*start)();
};

// Each has answered within 8 s (see answerLater), or the system never answers.
std::span<const Motion> motions();

std::span<const Motion> animationMotions();
std::span<const Motion> interruptionMotions();
std::span<const Motion> platformMotions();

// What stands for an answer until there is one.
NSString *unanswered();

// A new view of 20 × 20 points in a window of the probe's own, which lies below everything. Not owned by the
// caller.
UIView *newStage();

// Runs `action` after so many seconds.
void after(NSTimeInterval delay, void (^action)(void));

// Takes the window away.
void endMotions();

} // namespace probe

// Calls a block once, some time later.
@interface ProbeDelay : NSObject {
    void (^_action)(void);
}
+ (void)after:(NSTimeInterval)delay call:(void (^)(void))action;
@end
