#include "TouchState.h"

#include "Runtime/Objc/LazyState.hpp"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"
#include "UITouch+Further.h"

#include <algorithm>

namespace {

// Retained, to the very end of a process that exits with a finger down.
std::vector<UITouch *> &touches() {
    static auto &list = *new std::vector<UITouch *>;
    return list;
}

CGAffineTransform screenToWindow(UIWindow *window) {
    if (!window) return CGAffineTransformIdentity;
    return CGAffineTransformInvert(sim::state([window layer]).model.toSuperlayer());
}

// The linear part of the way from the screen to the view.
CGAffineTransform turnAndScale(UIWindow *window, UIView *view) {
    CGPoint origin = sim::fromScreen({0, 0}, window, view);
    CGPoint right = sim::fromScreen({1, 0}, window, view), down = sim::fromScreen({0, 1}, window, view);
    return CGAffineTransformMake(right.x - origin.x, right.y - origin.y, down.x - origin.x, down.y - origin.y,
                                 0, 0);
}

} // namespace

namespace sim {

TouchState &state(UITouch *touch) { return lazyState<TouchState>(touch->_touchState); }

UITouch *makeTouch(int pointer, CGPoint screenPoint) {
    UITouch *touch = [[UITouch new] autorelease];
    auto &mine = state(touch);
    mine.pointer = pointer;
    mine.timestamp = Clock::shared().now();
    mine.location = mine.previous = screenPoint;
    return touch;
}

UIEvent *touchesEvent() {
    static UIEvent *event = [UIEvent new];
    return event;
}

std::vector<UITouch *> liveTouches() { return touches(); }

void addLiveTouch(UITouch *touch) { touches().push_back([touch retain]); }

void forgetLiveTouch(UITouch *touch) {
    if (std::erase(touches(), touch)) [touch autorelease];
}

UITouch *touchDown(int pointer) {
    auto found = std::find_if(touches().begin(), touches().end(), [=](UITouch *touch) {
        return state(touch).pointer == pointer && !state(touch).lifted;
    });
    return found == touches().end() ? nil : *found;
}

CGPoint fromScreen(CGPoint point, UIWindow *window, UIView *view) {
    CGPoint inWindow = CGPointApplyAffineTransform(point, screenToWindow(window));
    return view && window ? [window convertPoint:inWindow toView:view] : inWindow;
}

CGPoint vectorFromScreen(CGPoint vector, UIWindow *window, UIView *view) {
    return CGPointApplyAffineTransform(vector, turnAndScale(window, view));
}

CGPoint vectorToScreen(CGPoint vector, UIWindow *window, UIView *view) {
    return CGPointApplyAffineTransform(vector, CGAffineTransformInvert(turnAndScale(window, view)));
}

} // namespace sim

using sim::state;

@implementation UITouch

- (void)dealloc {
    auto &mine = state(self);
    for (UIGestureRecognizer *recognizer : mine.recognizers) [recognizer release];
    [mine.view release];
    [mine.window release];
    delete &mine;
    [super dealloc];
}

- (UITouchPhase)phase {
    return state(self).phase;
}
- (NSUInteger)tapCount {
    return state(self).tapCount;
}
- (NSTimeInterval)timestamp {
    return sim::toSeconds(state(self).timestamp);
}
- (UIView *)view {
    return state(self).view;
}
- (UIWindow *)window {
    return state(self).window;
}
- (NSArray *)gestureRecognizers {
    auto &list = state(self).recognizers;
    return [NSArray arrayWithObjects:list.data() count:list.size()];
}

- (CGPoint)locationInView:(UIView *)view {
    return sim::fromScreen(state(self).location, state(self).window, view);
}
- (CGPoint)previousLocationInView:(UIView *)view {
    return sim::fromScreen(state(self).previous, state(self).window, view);
}

@end

@implementation UIEvent

- (NSTimeInterval)timestamp {
    sim::Nanos latest = 0;
    for (UITouch *touch : touches()) latest = std::max(latest, state(touch).timestamp);
    return sim::toSeconds(latest);
}

- (NSSet *)allTouches {
    return [NSSet setWithArray:[NSArray arrayWithObjects:touches().data() count:touches().size()]];
}

@end
