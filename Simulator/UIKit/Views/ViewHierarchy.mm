#include "ViewState.h"

#include "Runtime/Process/Events.hpp"
#include "UIKit/UIKit+Further.h"
#include "UIView+Further.h"

#include <UIKit/UIViewController.h>
#include <UIKit/UIWindow.h>

#include <algorithm>
#include <map>
#include <unordered_map>
#include <utility>

using sim::state;

namespace sim {

std::vector<UIView *> subviews(UIView *view) {
    std::vector<UIView *> result;
    for (CALayer *layer : state([view layer]).sublayers)
        if (UIView *subview = state(layer).view) result.push_back(subview);
    return result;
}

std::vector<UIView *> drawnSubviews(UIView *view) {
    auto result = subviews(view);
    std::stable_sort(result.begin(), result.end(),
                     [](UIView *a, UIView *b) { return [[a layer] zPosition] < [[b layer] zPosition]; });
    return result;
}

namespace {

// Views that asked for layout; not retained, a view takes itself off.
class PendingLayout {
public:
    bool empty() const { return byTurn_.empty(); }
    bool holds(UIView *view) const { return turns_.contains(view); }
    void add(UIView *view) {
        if (turns_.emplace(view, lastTurn_ + 1).second) byTurn_.emplace(++lastTurn_, view);
    }
    void remove(UIView *view) {
        auto found = turns_.find(view);
        if (found == turns_.end()) return;
        byTurn_.erase(found->second);
        turns_.erase(found);
    }
    // In the order in which they asked.
    std::vector<UIView *> views() const {
        std::vector<UIView *> result;
        for (const auto &[turn, view] : byTurn_) result.push_back(view);
        return result;
    }

private:
    uint64_t lastTurn_ = 0;
    std::map<uint64_t, UIView *> byTurn_;
    std::unordered_map<UIView *, uint64_t> turns_; // looked up, never walked through
};

PendingLayout &pendingLayout() {
    static PendingLayout views;
    return views;
}

UIView *viewWithTag(UIView *view, NSInteger tag) {
    const auto &mine = state(view);
    if (mine.tag == tag) return view;
    for (CALayer *layer : state(mine.layer).sublayers)
        if (UIView *subview = state(layer).view)
            if (UIView *found = viewWithTag(subview, tag)) return found;
    return nil;
}

void announceWindow(UIView *view, UIWindow *window, bool before) {
    if (before) {
        [view willMoveToWindow:window];
    } else {
        [view didMoveToWindow];
        if (window && state(view).needsLayout) [view setNeedsLayout];
    }
    for (UIView *subview : subviews(view)) announceWindow(subview, window, before);
}

// Takes `view` out of its superview, and tells it where it goes.
void leave(UIView *view, UIView *next) {
    UIView *superview = state(view).superview;
    UIWindow *window = [next window];
    if ([view window] != window) announceWindow(view, window, true);
    [view willMoveToSuperview:next];
    if (!superview) return;
    if (!window || [superview window] != window) cancelAnimations([view layer]);
    // Moving keeps animations within a window; the layer's own removal would end them.
    state(view).superview = nil;
    std::erase(state([superview layer]).sublayers, [view layer]);
    state([view layer]).superlayer = nil;
    [[view layer] autorelease];
    [view autorelease];
}

void arrive(UIView *view, UIView *superview, size_t layerIndex, bool windowChanged) {
    auto &layers = state([superview layer]).sublayers;
    layers.insert(layers.begin() + std::min(layerIndex, layers.size()), [[view layer] retain]);
    state([view layer]).superlayer = [superview layer];
    state(view).superview = superview;
    [view retain];
    [view didMoveToSuperview];
    if (windowChanged) announceWindow(view, [superview window], false);
    [superview setNeedsLayout];
}

size_t layerIndex(UIView *superview, CALayer *layer) {
    auto &layers = state([superview layer]).sublayers;
    return static_cast<size_t>(std::find(layers.begin(), layers.end(), layer) - layers.begin());
}

// Puts `view` into `superview`; `place` gives the index among the layers once the view has left its old
// place.
void insert(UIView *view, UIView *superview, auto &&place) {
    if (!view || view == superview || [superview isDescendantOfView:view]) return;
    [[view retain] autorelease];
    if (state(view).superview == superview) {
        auto &layers = state([superview layer]).sublayers;
        layers.erase(layers.begin() + static_cast<long>(layerIndex(superview, [view layer])));
        layers.insert(layers.begin() + static_cast<long>(std::min(place(), layers.size())), [view layer]);
        return;
    }
    bool windowChanged = [view window] != [superview window];
    leave(view, superview);
    arrive(view, superview, place(), windowChanged);
}

} // namespace

void layoutPendingViews() {
    // A layout may ask for another; a view that asks for its own again without end is cut off.
    constexpr int kMostRounds = 100;
    for (int round = 0; round < kMostRounds && !pendingLayout().empty(); ++round) {
        for (UIView *view : pendingLayout().views())
            if (pendingLayout().holds(view)) [view layoutIfNeeded];
        if (round == kMostRounds - 1 && !pendingLayout().empty())
            recordWarning(std::string("a layout without end: ") +
                          object_getClassName(pendingLayout().views().front()));
    }
}

void forgetPendingLayout(UIView *view) { pendingLayout().remove(view); }

} // namespace sim

@implementation UIView (UIViewHierarchy)

- (UIView *)superview {
    return state(self).superview;
}

- (UIWindow *)window {
    UIView *view = self;
    while (state(view).superview) view = state(view).superview;
    return [view isKindOfClass:[UIWindow class]] ? static_cast<UIWindow *>(view) : nil;
}

- (NSArray *)subviews {
    auto views = sim::subviews(self);
    return [NSArray arrayWithObjects:views.data() count:views.size()];
}

- (void)addSubview:(UIView *)view {
    sim::insert(view, self, [=] { return state([self layer]).sublayers.size(); });
}

- (void)insertSubview:(UIView *)view atIndex:(NSInteger)index {
    sim::insert(view, self, [=] {
        auto views = sim::subviews(self);
        auto at = static_cast<size_t>(std::max<NSInteger>(index, 0));
        return at < views.size() ? sim::layerIndex(self, [views[at] layer])
                                 : state([self layer]).sublayers.size();
    });
}

- (void)insertSubview:(UIView *)view belowSubview:(UIView *)sibling {
    sim::insert(view, self, [=] { return sim::layerIndex(self, [sibling layer]); });
}

- (void)insertSubview:(UIView *)view aboveSubview:(UIView *)sibling {
    sim::insert(view, self, [=] { return sim::layerIndex(self, [sibling layer]) + 1; });
}

- (void)bringSubviewToFront:(UIView *)view {
    if (view && state(view).superview == self) [self addSubview:view];
}

- (void)sendSubviewToBack:(UIView *)view {
    if (view && state(view).superview == self) [self insertSubview:view atIndex:0];
}

- (void)removeFromSuperview {
    UIView *superview = state(self).superview;
    if (!superview) return;
    [[self retain] autorelease];
    bool hadWindow = [self window] != nil;
    sim::leave(self, nil);
    [self didMoveToSuperview];
    if (hadWindow) sim::announceWindow(self, nil, false);
    [superview setNeedsLayout];
}

- (BOOL)isDescendantOfView:(UIView *)view {
    for (UIView *candidate = self; candidate; candidate = state(candidate).superview)
        if (candidate == view) return YES;
    return NO;
}

- (UIView *)viewWithTag:(NSInteger)tag {
    return sim::viewWithTag(self, tag);
}

- (void)willMoveToSuperview:(UIView *)superview {
}
- (void)didMoveToSuperview {
}
- (void)willMoveToWindow:(UIWindow *)window {
}
- (void)didMoveToWindow {
}

- (void)setNeedsLayout {
    state(self).needsLayout = true;
    if ([self window]) sim::pendingLayout().add(self);
}

- (void)layoutIfNeeded {
    sim::forgetPendingLayout(self);
    if (std::exchange(state(self).needsLayout, false)) {
        UIViewController *controller = state(self).controller;
        [controller viewWillLayoutSubviews];
        [self layoutSubviews];
        [controller viewDidLayoutSubviews];
    }
    for (UIView *view : sim::subviews(self))
        if ([view superview] == self) [view layoutIfNeeded];
}

- (void)layoutSubviews {
}

@end
