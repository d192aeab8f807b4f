// The simulator's side of UIScrollView.
#pragma once

#include "Runtime/Time/Clock.hpp"
#include "ScrollPhysics.hpp"

#include <UIKit/UIImageView.h>
#include <UIKit/UIScrollView.h>

#include <functional>

namespace sim {

// What moves the content without a finger.
enum class ScrollMotion { none, deceleration, animation };

struct ScrollState {
    CGSize contentSize = {0, 0};
    UIEdgeInsets inset = {0, 0, 0, 0};
    id<UIScrollViewDelegate> delegate = nil;                // not retained
    bool bounces = true, bouncesAlways[2] = {false, false}; // horizontally, vertically
    bool paging = false;
    bool delaysTouches = true, cancelsTouches = true;

    UIPanGestureRecognizer *pan = nil; // retained
    UIGestureRecognizer *delay = nil;  // holds touches back from the content; retained
    bool tracking = false, dragging = false;
    CGPoint dragStart = {0, 0}; // the offset at the drag's start, as if there were no rubber band

    ScrollMotion motion = ScrollMotion::none;
    Nanos motionStart = 0;
    double motionSeconds = 0;
    std::function<CGPoint(double seconds)> motionOffset;
    Clock::TaskId frames = 0;

    bool shows[2] = {true, true};                    // horizontal indicator, vertical one
    UIImageView *indicators[2] = {nullptr, nullptr}; // retained; made when first shown
};

ScrollState &state(UIScrollView *scrollView);

// Where the content may rest horizontally (axis 0) or vertically (axis 1).
ScrollRange scrollRange(UIScrollView *scrollView, int axis);
// Whether a finger can move the content along that axis.
bool canScroll(UIScrollView *scrollView, int axis);

} // namespace sim
