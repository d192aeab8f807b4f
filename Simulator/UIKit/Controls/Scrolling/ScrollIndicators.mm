#include "ScrollIndicators.h"

#include "ScrollState.h"

#include "UIKit/CoreGraphics/CGGeometry+Further.h"

#include <algorithm>

namespace sim {

namespace {

// Points; inferred, like the time a bar takes to fade.
constexpr CGFloat kThickness = 2.5;
constexpr CGFloat kMargin = 3;
constexpr CGFloat kShortest = 36;
constexpr CGFloat kShortestSqueezed = 7;
constexpr double kFadeSeconds = 0.25;

UIImageView *indicator(UIScrollView *scrollView, int axis) {
    UIImageView *&bar = state(scrollView).indicators[axis];
    if (!bar) {
        bar = [[UIImageView alloc] initWithFrame:CGRectZero];
        [bar setBackgroundColor:[UIColor colorWithWhite:0 alpha:0.35]];
        [[bar layer] setCornerRadius:kThickness / 2];
        [bar setAlpha:0];
        [scrollView addSubview:bar];
    }
    [scrollView bringSubviewToFront:bar];
    return bar;
}

struct Span {
    CGFloat start, length;
};

// Where the bar lies along its axis, measured from the view's edge. Pulled past the end it is squeezed there.
Span span(UIScrollView *scrollView, int axis) {
    CGRect bounds = [scrollView bounds];
    CGFloat room = axis ? bounds.size.height : bounds.size.width;
    CGFloat offset = axis ? bounds.origin.y : bounds.origin.x;
    ScrollRange range = scrollRange(scrollView, axis);
    CGFloat content = CGFloat(range.most - range.least) + room, track = room - 2 * kMargin;
    CGFloat beyond = std::abs(offset - range.clamp(offset));
    CGFloat length = std::max(track * room / content, kShortest) - beyond;
    length = std::min(std::max(length, kShortestSqueezed), track);
    CGFloat part =
        range.most > range.least ? (range.clamp(offset) - range.least) / (range.most - range.least) : 0;
    return {kMargin + part * (track - length), length};
}

bool isWanted(UIScrollView *scrollView, int axis) {
    ScrollRange range = scrollRange(scrollView, axis);
    return state(scrollView).shows[axis] && range.most > range.least;
}

} // namespace

void placeIndicators(UIScrollView *scrollView) {
    CGRect bounds = [scrollView bounds];
    for (int axis = 0; axis < 2; ++axis) {
        UIImageView *bar = state(scrollView).indicators[axis];
        if (!bar) continue;
        auto [start, length] = span(scrollView, axis);
        CGPoint corner = {CGRectGetMaxX(bounds) - kMargin - kThickness,
                          CGRectGetMaxY(bounds) - kMargin - kThickness};
        [bar setFrame:axis ? CGRectMake(corner.x, bounds.origin.y + start, kThickness, length)
                           : CGRectMake(bounds.origin.x + start, corner.y, length, kThickness)];
    }
}

void showIndicators(UIScrollView *scrollView) {
    for (int axis = 0; axis < 2; ++axis) {
        if (!isWanted(scrollView, axis)) continue;
        UIImageView *bar = indicator(scrollView, axis);
        [[bar layer] removeAllAnimations];
        [bar setAlpha:1];
    }
    placeIndicators(scrollView);
}

void fadeIndicators(UIScrollView *scrollView) {
    for (UIImageView *bar : state(scrollView).indicators) {
        if (!bar || [bar alpha] == 0) continue;
        [UIView animateWithDuration:kFadeSeconds animations:^{ [bar setAlpha:0]; }];
    }
}

void removeIndicator(UIScrollView *scrollView, int axis) {
    UIImageView *&bar = state(scrollView).indicators[axis];
    [bar removeFromSuperview];
    [bar release];
    bar = nil;
}

} // namespace sim
