#include "NavigationState.h"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "UINavigationController+Further.h"

#include <initializer_list>

namespace {

struct NavigationItemState {
    NSString *title = nil, *prompt = nil;                   // retained
    UIView *titleView = nil;                                // retained
    UIBarButtonItem *back = nil, *left = nil, *right = nil; // retained
    bool hidesBack = false;
    UINavigationBar *bar = nil; // not retained
};

NavigationItemState &state(UINavigationItem *item) {
    return sim::lazyState<NavigationItemState>(item->_navigationItemState);
}

// The bar that shows the item lays itself out anew.
void changed(UINavigationItem *item) {
    auto &mine = state(item);
    for (UIBarButtonItem *button : {mine.left, mine.right}) sim::setBar(button, mine.bar);
    [mine.bar itemHasChanged];
}

void replaceButton(UINavigationItem *item, UIBarButtonItem *NavigationItemState::*slot,
                   UIBarButtonItem *button) {
    UIBarButtonItem *&held = state(item).*slot;
    if (held == button) return;
    sim::setBar(held, nil);
    sim::retainInto(held, button);
    changed(item);
}

} // namespace

namespace sim {
void setBar(UINavigationItem *item, UINavigationBar *bar) {
    if (!item) return;
    ::state(item).bar = bar;
    changed(item);
}
} // namespace sim

@implementation UINavigationItem

- (instancetype)initWithTitle:(NSString *)title {
    if ((self = [super init])) state(self).title = [title copy];
    return self;
}

- (void)dealloc {
    auto &mine = state(self);
    for (UIBarButtonItem *button : {mine.left, mine.right}) sim::setBar(button, nil);
    [mine.title release];
    [mine.prompt release];
    [mine.titleView release];
    [mine.back release];
    [mine.left release];
    [mine.right release];
    delete &mine;
    [super dealloc];
}

- (NSString *)title {
    return state(self).title;
}
- (void)setTitle:(NSString *)title {
    sim::copyInto(state(self).title, title);
    changed(self);
}

- (NSString *)prompt {
    return state(self).prompt;
}
- (void)setPrompt:(NSString *)prompt {
    sim::copyInto(state(self).prompt, prompt);
}

- (UIView *)titleView {
    return state(self).titleView;
}
- (void)setTitleView:(UIView *)view {
    if (view == state(self).titleView) return;
    [state(self).titleView removeFromSuperview];
    sim::retainInto(state(self).titleView, view);
    changed(self);
}

- (BOOL)hidesBackButton {
    return state(self).hidesBack;
}
- (void)setHidesBackButton:(BOOL)hides {
    state(self).hidesBack = hides;
    changed(self);
}

- (UIBarButtonItem *)backBarButtonItem {
    return state(self).back;
}
- (void)setBackBarButtonItem:(UIBarButtonItem *)button {
    sim::retainInto(state(self).back, button);
    changed(self);
}

- (UIBarButtonItem *)leftBarButtonItem {
    return state(self).left;
}
- (void)setLeftBarButtonItem:(UIBarButtonItem *)button {
    replaceButton(self, &NavigationItemState::left, button);
}
- (void)setLeftBarButtonItem:(UIBarButtonItem *)button animated:(BOOL)animated {
    [self setLeftBarButtonItem:button];
}

- (UIBarButtonItem *)rightBarButtonItem {
    return state(self).right;
}
- (void)setRightBarButtonItem:(UIBarButtonItem *)button {
    replaceButton(self, &NavigationItemState::right, button);
}
- (void)setRightBarButtonItem:(UIBarButtonItem *)button animated:(BOOL)animated {
    [self setRightBarButtonItem:button];
}

@end
