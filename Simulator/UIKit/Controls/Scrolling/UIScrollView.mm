#include "Runtime/Objc/LazyState.hpp"
#include "ScrollIndicators.h"
#include "ScrollMotion.h"
#include "ScrollRecognizers.h"
#include "UIKit/Touch/GestureArbiter.h"
#include "UIKit/UIKit+Further.h"
#include "UIScrollView+Further.h"

#include <UIKit/UIControl.h>

#include <algorithm>

namespace sim {

ScrollState &state(UIScrollView *scrollView) { return lazyState<ScrollState>(scrollView->_scrollState); }

ScrollRange scrollRange(UIScrollView *scrollView, int axis) {
    const auto &mine = state(scrollView);
    CGSize room = [scrollView bounds].size;
    double before = axis ? mine.inset.top : mine.inset.left;
    double after = axis ? mine.inset.bottom : mine.inset.right;
    double content = axis ? mine.contentSize.height : mine.contentSize.width;
    double most = content + after - (axis ? room.height : room.width);
    return {-before, std::max(-before, most)};
}

bool canScroll(UIScrollView *scrollView, int axis) {
    const auto &mine = state(scrollView);
    ScrollRange range = scrollRange(scrollView, axis);
    return range.most > range.least || (mine.bounces && mine.bouncesAlways[axis]);
}

} // namespace sim

using sim::state;

@implementation UIScrollView

- (instancetype)initWithFrame:(CGRect)frame {
    if (!(self = [super initWithFrame:frame])) return nil;
    auto &mine = state(self);
    [self setClipsToBounds:YES];
    mine.delay = [UIScrollViewDelayedTouchesBeganGestureRecognizer new];
    mine.pan = [[UIScrollViewPanGestureRecognizer alloc] initWithTarget:self action:@selector(handlePan:)];
    [self addGestureRecognizer:mine.delay];
    [self addGestureRecognizer:mine.pan];
    return self;
}

- (void)dealloc {
    auto *mine = &state(self);
    sim::abandonMotion(self);
    sim::removeIndicator(self, 0);
    sim::removeIndicator(self, 1);
    [self setGestureRecognizers:nil];
    [mine->pan release];
    [mine->delay release];
    delete mine;
    _scrollState = nullptr;
    [super dealloc];
}

- (void)handlePan:(UIPanGestureRecognizer *)pan {
    switch ([pan state]) {
    case UIGestureRecognizerStateBegan:
        sim::beginDragging(self);
        return sim::drag(self);
    case UIGestureRecognizerStateChanged:
        return sim::drag(self);
    case UIGestureRecognizerStateEnded:
        return sim::endDragging(self, [pan velocityInView:self]);
    default:
        return sim::endDragging(self, CGPointZero);
    }
}

// Content that already follows a touch keeps it when it does not let itself be cancelled.
- (BOOL)gestureRecognizerShouldBegin:(UIGestureRecognizer *)recognizer {
    auto &mine = state(self);
    if (recognizer != mine.pan) return [super gestureRecognizerShouldBegin:recognizer];
    for (UITouch *touch : std::vector(sim::state(recognizer).touches)) {
        UIView *content = [touch view];
        if (content == self || sim::state(touch).delivery != sim::TouchState::Delivery::delivered) continue;
        if (!mine.cancelsTouches || ![self touchesShouldCancelInContentView:content]) return NO;
    }
    return YES;
}

- (BOOL)touchesShouldBegin:(NSSet *)touches withEvent:(UIEvent *)event inContentView:(UIView *)view {
    return YES;
}
- (BOOL)touchesShouldCancelInContentView:(UIView *)view {
    return ![view isKindOfClass:[UIControl class]];
}

- (CGPoint)contentOffset {
    return [self bounds].origin;
}
// Content that moves goes on from its own course on the next frame.
- (void)setContentOffset:(CGPoint)offset {
    CGRect bounds = [self bounds];
    if (CGPointEqualToPoint(bounds.origin, offset)) return;
    bounds.origin = offset;
    [self setBounds:bounds];
}
- (void)setContentOffset:(CGPoint)offset animated:(BOOL)animated {
    sim::stopMotion(self);
    if (animated && [self window]) {
        if (!CGPointEqualToPoint([self contentOffset], offset)) sim::animateOffset(self, offset);
    } else {
        [self setContentOffset:offset];
    }
}

- (void)setBounds:(CGRect)bounds {
    CGRect before = [self bounds];
    [super setBounds:bounds];
    if (!CGPointEqualToPoint(before.origin, bounds.origin)) {
        [self setNeedsLayout];
        sim::placeIndicators(self);
        if ([[self delegate] respondsToSelector:@selector(scrollViewDidScroll:)])
            [[self delegate] scrollViewDidScroll:self];
    }
    if (!CGSizeEqualToSize(before.size, bounds.size)) sim::keepInRange(self);
}
- (void)setFrame:(CGRect)frame {
    CGSize before = [self bounds].size;
    [super setFrame:frame];
    if (!CGSizeEqualToSize(before, [self bounds].size)) sim::keepInRange(self);
}

// Out of its window the content stops.
- (void)willMoveToWindow:(UIWindow *)window {
    [super willMoveToWindow:window];
    if (window || state(self).motion == sim::ScrollMotion::none) return;
    sim::abandonMotion(self);
    sim::keepInRange(self);
}

- (CGSize)contentSize {
    return state(self).contentSize;
}
- (void)setContentSize:(CGSize)size {
    state(self).contentSize = size;
    sim::keepInRange(self);
}

- (UIEdgeInsets)contentInset {
    return state(self).inset;
}
- (void)setContentInset:(UIEdgeInsets)inset {
    state(self).inset = inset;
    sim::keepInRange(self);
}

- (id<UIScrollViewDelegate>)delegate {
    return state(self).delegate;
}
- (void)setDelegate:(id<UIScrollViewDelegate>)delegate {
    state(self).delegate = delegate;
}

- (BOOL)bounces {
    return state(self).bounces;
}
- (void)setBounces:(BOOL)bounces {
    state(self).bounces = bounces;
}

- (BOOL)alwaysBounceHorizontal {
    return state(self).bouncesAlways[0];
}
- (void)setAlwaysBounceHorizontal:(BOOL)bounces {
    state(self).bouncesAlways[0] = bounces;
}
- (BOOL)alwaysBounceVertical {
    return state(self).bouncesAlways[1];
}
- (void)setAlwaysBounceVertical:(BOOL)bounces {
    state(self).bouncesAlways[1] = bounces;
}

- (BOOL)isPagingEnabled {
    return state(self).paging;
}
- (void)setPagingEnabled:(BOOL)paging {
    state(self).paging = paging;
}

- (BOOL)isScrollEnabled {
    return [state(self).pan isEnabled];
}
- (void)setScrollEnabled:(BOOL)enabled {
    [state(self).pan setEnabled:enabled];
    [state(self).delay setEnabled:enabled];
}

- (BOOL)showsHorizontalScrollIndicator {
    return state(self).shows[0];
}
- (void)setShowsHorizontalScrollIndicator:(BOOL)shows {
    state(self).shows[0] = shows;
    if (!shows) sim::removeIndicator(self, 0);
}
- (BOOL)showsVerticalScrollIndicator {
    return state(self).shows[1];
}
- (void)setShowsVerticalScrollIndicator:(BOOL)shows {
    state(self).shows[1] = shows;
    if (!shows) sim::removeIndicator(self, 1);
}

- (BOOL)delaysContentTouches {
    return state(self).delaysTouches;
}
- (void)setDelaysContentTouches:(BOOL)delays {
    state(self).delaysTouches = delays;
}

- (BOOL)canCancelContentTouches {
    return state(self).cancelsTouches;
}
- (void)setCanCancelContentTouches:(BOOL)cancels {
    state(self).cancelsTouches = cancels;
}

- (BOOL)isTracking {
    return state(self).tracking;
}
- (BOOL)isDragging {
    return state(self).dragging;
}
- (BOOL)isDecelerating {
    return state(self).motion == sim::ScrollMotion::deceleration;
}

- (UIPanGestureRecognizer *)panGestureRecognizer {
    return state(self).pan;
}

@end
