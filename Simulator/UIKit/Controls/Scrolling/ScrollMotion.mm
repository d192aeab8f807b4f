#include "ScrollMotion.h"

#include "Runtime/Process/Pixels.hpp"
#include "Runtime/Time/RunLoop.hpp"
#include "ScrollIndicators.h"
#include "UIKit/QuartzCore/Timing.hpp"
#include "UIKit/Touch/UIGestureRecognizer+Further.h"
#include "UIScrollView+Further.h"

#include <algorithm>
#include <utility>

namespace sim {

namespace {

// In the order in which they started; not retained, a view that goes takes itself off.
std::vector<UIScrollView *> &underWay() {
    static std::vector<UIScrollView *> list;
    return list;
}

void setUnderWay(UIScrollView *scrollView, bool busy) {
    std::erase(underWay(), scrollView);
    if (busy) underWay().push_back(scrollView);
}

void endMotion(UIScrollView *scrollView) {
    auto &mine = state(scrollView);
    Clock::shared().cancel(std::exchange(mine.frames, 0));
    mine.motion = ScrollMotion::none;
    mine.motionOffset = nullptr;
    setUnderWay(scrollView, mine.dragging);
}

void tellEndOf(ScrollMotion motion, UIScrollView *scrollView) {
    id<UIScrollViewDelegate> delegate = state(scrollView).delegate;
    if (motion == ScrollMotion::deceleration &&
        [delegate respondsToSelector:@selector(scrollViewDidEndDecelerating:)])
        [delegate scrollViewDidEndDecelerating:scrollView];
    if (motion == ScrollMotion::animation &&
        [delegate respondsToSelector:@selector(scrollViewDidEndScrollingAnimation:)])
        [delegate scrollViewDidEndScrollingAnimation:scrollView];
}

void moveOneFrame(UIScrollView *scrollView) {
    [[scrollView retain] autorelease];
    auto &mine = state(scrollView);
    ScrollMotion motion = mine.motion;
    double seconds = toSeconds(Clock::shared().now() - mine.motionStart);
    bool over = seconds >= mine.motionSeconds;
    Clock::TaskId task = mine.frames;
    [scrollView setContentOffset:mine.motionOffset(std::min(seconds, mine.motionSeconds))];
    if (!over || mine.frames != task) return; // the delegate may have ended it
    endMotion(scrollView);
    // What could be scrolled to may have changed on the way.
    if (motion == ScrollMotion::deceleration) keepInRange(scrollView);
    fadeIndicators(scrollView);
    tellEndOf(motion, scrollView);
}

void startMotion(UIScrollView *scrollView, ScrollMotion motion, double seconds,
                 std::function<CGPoint(double)> offset) {
    endMotion(scrollView);
    auto &mine = state(scrollView);
    mine.motion = motion;
    mine.motionStart = Clock::shared().now();
    mine.motionSeconds = seconds;
    mine.motionOffset = std::move(offset);
    mine.frames = Clock::shared().everyFrame([scrollView] { moveOneFrame(scrollView); });
    setUnderWay(scrollView, true);
}

// One axis of a drag: where the content is when the finger has come `way` from where it started.
double dragged(UIScrollView *scrollView, int axis, double start, double way, double length) {
    ScrollRange range = scrollRange(scrollView, axis);
    double offset = start - way, edge = range.clamp(offset);
    if (offset == edge) return wholePixels(offset);
    if (!state(scrollView).bounces) return edge;
    double band = rubberBand(std::abs(offset - edge), length);
    return wholePixels(edge + (offset > edge ? band : -band));
}

// The offset that would show `offset` if there were no rubber band.
double undragged(UIScrollView *scrollView, int axis, double offset, double length) {
    double edge = scrollRange(scrollView, axis).clamp(offset);
    if (offset == edge) return offset;
    double pull = pullBehind(std::abs(offset - edge), length);
    return edge + (offset > edge ? pull : -pull);
}

AxisMotion motionAlong(UIScrollView *scrollView, int axis, double offset, double velocity, double length) {
    ScrollRange range = scrollRange(scrollView, axis);
    const auto &mine = state(scrollView);
    if (!canScroll(scrollView, axis)) return AxisMotion::settle(offset, 0, offset);
    if (mine.paging) return AxisMotion::settle(offset, velocity, pageOffset(offset, velocity, length, range));
    return AxisMotion::decelerate(offset, velocity, range, mine.bounces);
}

// Between pixels only where the motion itself comes to rest: at an edge or on a page.
double placeAt(const AxisMotion &motion, double seconds, bool exactRest) {
    bool resting = seconds >= motion.duration();
    return resting && exactRest ? motion.rest() : wholePixels(motion.at(seconds));
}

bool restsExactly(UIScrollView *scrollView, int axis, const AxisMotion &motion) {
    ScrollRange range = scrollRange(scrollView, axis);
    return state(scrollView).paging || !canScroll(scrollView, axis) || motion.rest() == range.least ||
           motion.rest() == range.most;
}

} // namespace

void setTracking(UIScrollView *scrollView, bool tracking) {
    static int tracked = 0;
    if (std::exchange(state(scrollView).tracking, tracking) == tracking) return;
    tracked += tracking ? 1 : -1;
    setRunLoopMode(tracked ? kTrackingMode : kDefaultMode);
}

void beginDragging(UIScrollView *scrollView) {
    auto &mine = state(scrollView);
    CGPoint offset = [scrollView contentOffset];
    CGSize size = [scrollView bounds].size;
    mine.dragging = true;
    mine.dragStart = {undragged(scrollView, 0, offset.x, size.width),
                      undragged(scrollView, 1, offset.y, size.height)};
    setUnderWay(scrollView, true);
    showIndicators(scrollView);
    if ([mine.delegate respondsToSelector:@selector(scrollViewWillBeginDragging:)])
        [mine.delegate scrollViewWillBeginDragging:scrollView];
}

void drag(UIScrollView *scrollView) {
    const auto &mine = state(scrollView);
    if (!mine.dragging) return;
    CGPoint way = [mine.pan translationInView:scrollView];
    CGPoint offset = [scrollView contentOffset];
    CGSize size = [scrollView bounds].size;
    if (canScroll(scrollView, 0)) offset.x = dragged(scrollView, 0, mine.dragStart.x, way.x, size.width);
    if (canScroll(scrollView, 1)) offset.y = dragged(scrollView, 1, mine.dragStart.y, way.y, size.height);
    [scrollView setContentOffset:offset];
}

void endDragging(UIScrollView *scrollView, CGPoint velocity) {
    auto &mine = state(scrollView);
    if (!mine.dragging) return;
    mine.dragging = false;
    setTracking(scrollView, false);
    setUnderWay(scrollView, false);
    CGPoint offset = [scrollView contentOffset];
    CGSize size = [scrollView bounds].size;
    // Content goes against the finger: the offset falls as the finger moves on.
    AxisMotion x = motionAlong(scrollView, 0, offset.x, -velocity.x, size.width);
    AxisMotion y = motionAlong(scrollView, 1, offset.y, -velocity.y, size.height);
    bool exactX = restsExactly(scrollView, 0, x), exactY = restsExactly(scrollView, 1, y);
    auto place = [=](double seconds) {
        return CGPointMake(placeAt(x, seconds, exactX), placeAt(y, seconds, exactY));
    };
    double seconds = std::max(x.duration(), y.duration());
    if (seconds == 0) [scrollView setContentOffset:place(0)];
    if ([mine.delegate respondsToSelector:@selector(scrollViewDidEndDragging:willDecelerate:)])
        [mine.delegate scrollViewDidEndDragging:scrollView willDecelerate:seconds > 0];
    if (seconds == 0) return fadeIndicators(scrollView);
    startMotion(scrollView, ScrollMotion::deceleration, seconds, place);
    if ([mine.delegate respondsToSelector:@selector(scrollViewWillBeginDecelerating:)])
        [mine.delegate scrollViewWillBeginDecelerating:scrollView];
}

void animateOffset(UIScrollView *scrollView, CGPoint offset) {
    constexpr double kSeconds = 0.3;
    CGPoint from = [scrollView contentOffset];
    startMotion(scrollView, ScrollMotion::animation, kSeconds, [=](double seconds) {
        double part = TimingCurve::easeInOut().at(seconds / kSeconds);
        if (seconds >= kSeconds) return offset;
        return CGPointMake(wholePixels(from.x + part * (offset.x - from.x)),
                           wholePixels(from.y + part * (offset.y - from.y)));
    });
}

bool stopMotion(UIScrollView *scrollView) {
    ScrollMotion motion = state(scrollView).motion;
    if (motion == ScrollMotion::none) return false;
    endMotion(scrollView);
    if (motion == ScrollMotion::deceleration) tellEndOf(motion, scrollView);
    return true;
}

void abandonMotion(UIScrollView *scrollView) {
    endMotion(scrollView);
    setUnderWay(scrollView, false);
}

void keepInRange(UIScrollView *scrollView) {
    const auto &mine = state(scrollView);
    if (mine.tracking || mine.dragging || mine.motion != ScrollMotion::none) return;
    CGPoint offset = [scrollView contentOffset];
    [scrollView setContentOffset:{scrollRange(scrollView, 0).clamp(offset.x),
                                  scrollRange(scrollView, 1).clamp(offset.y)}];
}

std::vector<std::string> scrollViewsUnderWay() {
    std::vector<std::string> result;
    for (UIScrollView *scrollView : underWay()) {
        const auto &mine = state(scrollView);
        const char *what = mine.dragging                               ? "is dragged"
                           : mine.motion == ScrollMotion::deceleration ? "decelerates"
                                                                       : "scrolls to an offset";
        result.push_back(std::string("scroll view ") + [[scrollView description] UTF8String] + " " + what);
    }
    return result;
}

} // namespace sim
