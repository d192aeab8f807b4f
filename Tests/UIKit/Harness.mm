#include "Harness.h"

#include "UIKit/Touch/RecognizerState.h"
#include "UIKit/UIKit+Further.h"

#include <utility>

namespace harness {

namespace {

Lines &notes() {
    static Lines lines;
    return lines;
}

// Runs in the touch phase of this moment, with what follows from it.
void inTouchPhase(const std::function<void()> &work) {
    sim::Clock &clock = sim::Clock::shared();
    clock.schedule(clock.now(), sim::Clock::Phase::touch, work);
    clock.settleNow();
}

} // namespace

void note(const std::string &line) { notes().push_back(line); }
Lines takeNotes() { return std::exchange(notes(), {}); }

UIWindow *makeWindow() {
    // Never taken down, so that what lives as long as the process does not look lost at its end.
    static auto &kept = *new std::vector<UIWindow *>;
    UIWindow *window = [[UIWindow alloc] initWithFrame:CGRectMake(0, 0, 375, 667)];
    kept.push_back(window);
    [window setHidden:NO];
    return window;
}

UIView *addView(UIView *superview, CGRect frame) {
    UIView *view = [[UIView alloc] initWithFrame:frame];
    [superview addSubview:view];
    [view release];
    return view;
}

void waitFor(double seconds) {
    sim::Clock &clock = sim::Clock::shared();
    clock.settleNow();
    clock.advance(clock.now() + sim::fromSeconds(seconds));
}

double now() { return sim::toSeconds(sim::Clock::shared().now()); }

void down(CGPoint point, int finger) {
    inTouchPhase([=] { sim::touchBegan(finger, point); });
}
void move(CGPoint point, int finger) {
    inTouchPhase([=] { sim::touchMoved(finger, point); });
}
void up(int finger) {
    inTouchPhase([=] { sim::touchEnded(finger); });
}
void cancel(int finger) {
    inTouchPhase([=] { sim::touchCancelled(finger); });
}

void tapAt(CGPoint point) { hold(point, 0.1); }

void hold(CGPoint point, double seconds) {
    down(point);
    waitFor(seconds);
    up();
}

void glide(CGPoint from, CGPoint to, double seconds, int finger) {
    int samples = std::max(1, static_cast<int>(std::lround(seconds * 60)));
    for (int i = 1; i <= samples; ++i) {
        waitFor(seconds / samples);
        CGFloat part = CGFloat(i) / samples;
        move({from.x + part * (to.x - from.x), from.y + part * (to.y - from.y)}, finger);
    }
}

void dragFromTo(CGPoint from, CGPoint to, double seconds) {
    down(from);
    glide(from, to, seconds);
    waitFor(0.2);
    up();
}

void flingFromTo(CGPoint from, CGPoint to, double seconds) {
    down(from);
    glide(from, to, seconds);
    up();
}

std::string stateOf(UIGestureRecognizer *recognizer) { return sim::stateName([recognizer state]); }

Witness *witness(const std::string &name) {
    Witness *result = [[Witness new] autorelease];
    result->name = name;
    return result;
}

TouchedView *addTouchedView(UIView *superview, CGRect frame, const std::string &name) {
    auto *view = [[TouchedView alloc] initWithFrame:frame];
    view->name = name;
    [superview addSubview:view];
    [view release];
    return view;
}

} // namespace harness

@implementation Witness

- (void)act:(UIGestureRecognizer *)recognizer {
    harness::note(name + " " + harness::stateOf(recognizer));
    if (also) also(recognizer);
}
- (void)actWithoutArgument {
    harness::note(name);
}

- (BOOL)gestureRecognizerShouldBegin:(UIGestureRecognizer *)recognizer {
    return !refusesToBegin;
}
- (BOOL)gestureRecognizer:(UIGestureRecognizer *)recognizer
    shouldRecognizeSimultaneouslyWithGestureRecognizer:(UIGestureRecognizer *)other {
    return runsTogether;
}
- (BOOL)gestureRecognizer:(UIGestureRecognizer *)recognizer shouldReceiveTouch:(UITouch *)touch {
    return !refusesTouches;
}

@end

@implementation TouchedView
- (void)touchesBegan:(NSSet *)touches withEvent:(UIEvent *)event {
    harness::note(name + " began");
}
- (void)touchesMoved:(NSSet *)touches withEvent:(UIEvent *)event {
    harness::note(name + " moved");
}
- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
    harness::note(name + " ended");
}
- (void)touchesCancelled:(NSSet *)touches withEvent:(UIEvent *)event {
    harness::note(name + " cancelled");
}
@end
