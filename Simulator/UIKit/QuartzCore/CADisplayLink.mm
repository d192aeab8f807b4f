#include "Runtime/Time/RunLoop.hpp"

#include <QuartzCore/CADisplayLink.h>

#include <algorithm>
#include <utility>

namespace {

constexpr double kFramesPerSecond = 60;

struct DisplayLinkState {
    id target = nil; // retained
    SEL selector = nullptr;
    sim::RunLoopModes modes = 0;
    sim::Clock::TaskId frames = 0;
    NSInteger interval = 1, skipped = 0;
    double timestamp = 0;
    bool paused = false;
};

DisplayLinkState &state(CADisplayLink *link) {
    if (!link->_displayLinkState) link->_displayLinkState = new DisplayLinkState;
    return *static_cast<DisplayLinkState *>(link->_displayLinkState);
}

sim::RunLoopModes modesNamed(NSString *mode) { return sim::runLoopModes(mode ? [mode UTF8String] : ""); }

void showFrame(CADisplayLink *link) {
    auto &mine = state(link);
    if (mine.paused || !(mine.modes & sim::runLoopMode()) || ++mine.skipped < mine.interval) return;
    mine.skipped = 0;
    mine.timestamp = CACurrentMediaTime();
    [[link retain] autorelease];
    [[[mine.target retain] autorelease] performSelector:mine.selector withObject:link];
}

} // namespace

@implementation CADisplayLink

+ (CADisplayLink *)displayLinkWithTarget:(id)target selector:(SEL)selector {
    CADisplayLink *link = [[self new] autorelease];
    state(link).target = [target retain];
    state(link).selector = selector;
    return link;
}

- (void)dealloc {
    [state(self).target release];
    delete &state(self);
    [super dealloc];
}

- (void)addToRunLoop:(NSRunLoop *)loop forMode:(NSString *)mode {
    auto &mine = state(self);
    if (!mine.target) return; // invalidated
    mine.modes |= modesNamed(mode);
    if (!mine.modes || mine.frames) return;
    CADisplayLink *link = [self retain];
    mine.frames = sim::Clock::shared().everyFrame([link] { showFrame(link); });
}

- (void)removeFromRunLoop:(NSRunLoop *)loop forMode:(NSString *)mode {
    auto &mine = state(self);
    mine.modes &= ~modesNamed(mode);
    if (mine.modes || !mine.frames) return;
    sim::Clock::shared().cancel(std::exchange(mine.frames, 0));
    [self autorelease];
}

- (void)invalidate {
    auto &mine = state(self);
    [std::exchange(mine.target, nil) autorelease];
    mine.modes = 0;
    if (!mine.frames) return;
    sim::Clock::shared().cancel(std::exchange(mine.frames, 0));
    [self autorelease];
}

- (CFTimeInterval)timestamp {
    return state(self).timestamp;
}
- (CFTimeInterval)duration {
    return 1 / kFramesPerSecond;
}

- (BOOL)isPaused {
    return state(self).paused;
}
- (void)setPaused:(BOOL)paused {
    state(self).paused = paused;
}

- (NSInteger)frameInterval {
    return state(self).interval;
}
- (void)setFrameInterval:(NSInteger)frames {
    state(self).interval = std::max<NSInteger>(frames, 1);
}

@end
