#include "Probe/Motion/Motion.h"

#include <array>

namespace probe {

namespace {

constexpr CGFloat kSide = 20, kBelowEverything = -1;

UIWindow *window;

} // namespace

std::span<const Motion> motions() {
    static std::array<Motion, 32> all;
    size_t count = 0;
    for (auto some : {animationMotions(), interruptionMotions(), platformMotions()})
        for (const Motion &motion : some) all[count++] = motion;
    return std::span(all).first(count);
}

NSString *unanswered() { return @"unanswered"; }

UIView *newStage() {
    if (!window) {
        window = [[UIWindow alloc] initWithFrame:CGRectMake(0, 0, 300, 300)];
        window.windowLevel = UIWindowLevelNormal + kBelowEverything;
        window.userInteractionEnabled = NO;
        window.hidden = NO;
    }
    UIView *view = [[[UIView alloc] initWithFrame:CGRectMake(0, 0, kSide, kSide)] autorelease];
    [window addSubview:view];
    return view;
}

void after(NSTimeInterval delay, void (^action)(void)) { [ProbeDelay after:delay call:action]; }

void endMotions() {
    window.hidden = YES;
    [window release];
    window = nil;
}

} // namespace probe

@implementation ProbeDelay

+ (void)after:(NSTimeInterval)delay call:(void (^)(void))action {
    ProbeDelay *call = [[self new] autorelease];
    call->_action = [action copy];
    [call performSelector:@selector(run) withObject:nil afterDelay:delay];
}

- (void)run {
    _action();
}

- (void)dealloc {
    [_action release];
    [super dealloc];
}

@end
