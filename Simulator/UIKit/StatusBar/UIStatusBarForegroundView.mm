#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "Runtime/Process/Pixels.hpp"
#include "StatusBarState.h"

#include <algorithm>

#include <UIKit/UIScreen.h>

namespace {

struct Entry {
    UIStatusBarItem *item;     // retained
    UIStatusBarItemView *view; // retained
    CGFloat width;
};

struct ForegroundState {
    std::vector<Entry> entries;
    UIStatusBarForegroundStyleAttributes *style = nil; // retained
};

ForegroundState &state(UIStatusBarForegroundView *view) {
    return sim::lazyState<ForegroundState>(view->_foregroundState);
}

Entry makeEntry(UIStatusBarItem *item, UIStatusBarForegroundStyleAttributes *style) {
    Class viewClass = sim::state(item).viewClass;
    UIStatusBarItemView *view = [[viewClass alloc] initWithItem:item data:nil actions:0 style:style];
    // The bar itself handles touches, not what stands in it.
    [view setUserInteractionEnabled:NO];
    return {[item retain], view, [view updateContentsAndWidth]};
}

void drop(Entry &entry) {
    [entry.view removeFromSuperview];
    [entry.view release];
    [entry.item release];
}

bool contains(const std::vector<UIStatusBarItem *> &items, UIStatusBarItem *item) {
    return std::find(items.begin(), items.end(), item) != items.end();
}

} // namespace

@implementation UIStatusBarForegroundView

- (void)dealloc {
    for (auto &entry : state(self).entries) drop(entry);
    [state(self).style release];
    delete &state(self);
    [super dealloc];
}

- (void)layoutSubviews {
    const auto &entries = state(self).entries;
    std::vector<sim::StatusBarSlot> slots;
    for (const auto &entry : entries) {
        slots.push_back(sim::state(entry.item).slot);
        slots.back().width = entry.width;
    }
    CGSize size = [self bounds].size;
    CGFloat scale = [[UIScreen mainScreen] scale];
    auto lefts = sim::layOutStatusBar(slots, size.width);
    for (size_t i = 0; i < entries.size(); ++i) {
        CGFloat left = sim::wholePixels(lefts[i], scale);
        [entries[i].view setFrame:CGRectMake(left, 0, entries[i].width, size.height)];
    }
}

@end

@implementation UIStatusBarForegroundView (Simulator)

- (void)synchronizeItems {
    auto &mine = state(self);
    const auto &items = sim::statusBarItems();
    for (auto &entry : mine.entries)
        if (!contains(items, entry.item)) drop(entry);
    std::erase_if(mine.entries, [&](const Entry &entry) { return !contains(items, entry.item); });
    for (UIStatusBarItem *item : items) {
        if ([self viewForItem:item]) continue;
        mine.entries.push_back(makeEntry(item, mine.style));
        [self addSubview:mine.entries.back().view];
    }
    [self layoutSubviews];
}

- (UIStatusBarItemView *)viewForItem:(UIStatusBarItem *)item {
    for (const auto &entry : state(self).entries)
        if (entry.item == item) return entry.view;
    return nil;
}

- (void)applyStyle:(UIStatusBarForegroundStyleAttributes *)style {
    auto &mine = state(self);
    sim::retainInto(mine.style, style);
    for (auto &entry : mine.entries) {
        [entry.view setForegroundStyle:style];
        CALayer *layer = [entry.view layer];
        [layer setShadowOpacity:0];
        [layer setShadowPath:nullptr];
    }
    [self updateData];
}

- (void)updateData {
    for (auto &entry : state(self).entries) entry.width = [entry.view updateContentsAndWidth];
    [self layoutSubviews];
}

@end
