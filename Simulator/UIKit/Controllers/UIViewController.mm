#include "ControllerState.h"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "UIKit/Navigation/NavigationState.h"
#include "UIKit/Views/UIResponder+Further.h"
#include "UIKit/Views/ViewState.h"
#include "UIViewController+Further.h"

#include <UIKit/UIScreen.h>

#include <algorithm>

namespace sim {

ControllerState &state(UIViewController *controller) {
    return lazyState<ControllerState>(controller->_controllerState);
}

} // namespace sim

using sim::state;

@implementation UIViewController

- (void)dealloc {
    auto &mine = state(self);
    for (UIViewController *child : mine.children) {
        state(child).parent = nil;
        [child release];
    }
    if (mine.presented) state(mine.presented).presenting = nil;
    [mine.presented release];
    if (mine.view) state(mine.view).controller = nil;
    [mine.view release];
    [mine.title release];
    [mine.item release];
    delete &mine;
    _controllerState = nullptr;
    [super dealloc];
}

// The view is made when it is first asked for.
- (UIView *)view {
    auto &mine = state(self);
    if (!mine.view) {
        [self loadView];
        if (mine.view) [self viewDidLoad];
    }
    return mine.view;
}
- (void)setView:(UIView *)view {
    auto &mine = state(self);
    if (view == mine.view) return;
    if (mine.view) state(mine.view).controller = nil;
    sim::retainInto(mine.view, view);
    if (view) state(view).controller = self;
}
- (BOOL)isViewLoaded {
    return state(self).view != nil;
}

- (void)loadView {
    UIView *view = [[UIView alloc] initWithFrame:[[UIScreen mainScreen] bounds]];
    [view setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [self setView:view];
    [view release];
}

- (NSString *)title {
    return state(self).title;
}
- (void)setTitle:(NSString *)title {
    sim::copyInto(state(self).title, title);
    [[self navigationItem] setTitle:title];
}

- (UIResponder *)nextResponder {
    return [state(self).view superview];
}

- (void)viewDidLoad {
}
- (void)viewWillAppear:(BOOL)animated {
}
- (void)viewDidAppear:(BOOL)animated {
}
- (void)viewWillDisappear:(BOOL)animated {
}
- (void)viewDidDisappear:(BOOL)animated {
}
- (void)viewWillLayoutSubviews {
}
- (void)viewDidLayoutSubviews {
}

@end

@implementation UIViewController (UIContainerViewController)

- (UIViewController *)parentViewController {
    return state(self).parent;
}

- (NSArray *)childViewControllers {
    auto &list = state(self).children;
    return [NSArray arrayWithObjects:list.data() count:list.size()];
}

- (void)addChildViewController:(UIViewController *)child {
    if (!child || state(child).parent == self) return;
    [child retain];
    if (state(child).parent) [child removeFromParentViewController];
    [child willMoveToParentViewController:self];
    state(child).parent = self;
    state(self).children.push_back(child);
}

- (void)removeFromParentViewController {
    UIViewController *parent = state(self).parent;
    if (!parent || std::erase(state(parent).children, self) == 0) return;
    state(self).parent = nil;
    [self didMoveToParentViewController:nil];
    [self autorelease];
}

- (void)willMoveToParentViewController:(UIViewController *)parent {
}
- (void)didMoveToParentViewController:(UIViewController *)parent {
}

@end

@implementation UIViewController (UINavigationControllerItem)

- (UINavigationItem *)navigationItem {
    auto &mine = state(self);
    if (!mine.item) mine.item = [[UINavigationItem alloc] initWithTitle:mine.title];
    return mine.item;
}

- (UINavigationController *)navigationController {
    for (UIViewController *above = state(self).parent; above; above = state(above).parent)
        if ([above isKindOfClass:[UINavigationController class]])
            return static_cast<UINavigationController *>(above);
    return nil;
}

@end
