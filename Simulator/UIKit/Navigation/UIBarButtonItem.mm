#include "NavigationState.h"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "UIKit/Accessibility/Forgetting.h"

namespace {

struct BarButtonItemState {
    NSString *title = nil; // retained
    UIImage *image = nil;  // retained
    UIBarButtonItemStyle style = UIBarButtonItemStylePlain;
    id target = nil; // not retained
    SEL action = nullptr;
    bool enabled = true;
    UINavigationBar *bar = nil; // not retained
};

BarButtonItemState &state(UIBarButtonItem *item) {
    return sim::lazyState<BarButtonItemState>(item->_barButtonItemState);
}

} // namespace

namespace sim {
void setBar(UIBarButtonItem *item, UINavigationBar *bar) {
    if (item) ::state(item).bar = bar;
}
} // namespace sim

@implementation UIBarButtonItem

- (instancetype)initWithImage:(UIImage *)image
                        style:(UIBarButtonItemStyle)style
                       target:(id)target
                       action:(SEL)action {
    if (!(self = [super init])) return nil;
    auto &mine = state(self);
    mine.image = [image retain];
    mine.style = style;
    mine.target = target;
    mine.action = action;
    return self;
}

- (instancetype)initWithTitle:(NSString *)title
                        style:(UIBarButtonItemStyle)style
                       target:(id)target
                       action:(SEL)action {
    if ((self = [self initWithImage:nil style:style target:target action:action]))
        state(self).title = [title copy];
    return self;
}

- (void)dealloc {
    [state(self).title release];
    [state(self).image release];
    delete &state(self);
    sim::forgetAccessibility(self);
    [super dealloc];
}

- (NSString *)title {
    return state(self).title;
}
- (void)setTitle:(NSString *)title {
    sim::copyInto(state(self).title, title);
    [state(self).bar itemHasChanged];
}

- (UIImage *)image {
    return state(self).image;
}
- (void)setImage:(UIImage *)image {
    sim::retainInto(state(self).image, image);
    [state(self).bar itemHasChanged];
}

- (UIBarButtonItemStyle)style {
    return state(self).style;
}
- (void)setStyle:(UIBarButtonItemStyle)style {
    state(self).style = style;
}

- (id)target {
    return state(self).target;
}
- (void)setTarget:(id)target {
    state(self).target = target;
}

- (SEL)action {
    return state(self).action;
}
- (void)setAction:(SEL)action {
    state(self).action = action;
}

- (BOOL)isEnabled {
    return state(self).enabled;
}
- (void)setEnabled:(BOOL)enabled {
    state(self).enabled = enabled;
    [state(self).bar itemHasChanged];
}

@end
