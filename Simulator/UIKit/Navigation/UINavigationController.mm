#include "NavigationState.h"

#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Process/Device.hpp"
#include "UIKit/Controllers/ControllerState.h"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"
#include "UINavigationController+Further.h"

#include <UIKit/UIAccessibility.h>
#include <UIKit/UIApplication.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr double kSeconds = 0.35;
// The page below moves this part of the way.
constexpr CGFloat kParallax = 0.3;

struct NavigationState {
    std::vector<UIViewController *> stack; // retained; children too
    UINavigationBar *bar = nil;            // retained
    UIView *pages = nil;                   // retained; holds the page that is shown
    // A transition under way: its end, to be done early when another begins.
    UIViewController *leaving = nil; // retained
};

NavigationState &state(UINavigationController *controller) {
    return sim::lazyState<NavigationState>(controller->_navigationControllerState);
}

// Points at the top that the status bar covers.
CGFloat statusBarHeight() {
    UIApplication *application = [UIApplication sharedApplication];
    if ([application isStatusBarHidden]) return 0;
    CGRect frame = [application statusBarFrame];
    return std::min(frame.size.width, frame.size.height);
}

// A page that scrolls starts below the bar and runs on behind it.
void fitUnderBar(UINavigationController *controller, UIViewController *page) {
    UIView *view = [page view];
    UIScrollView *scroll = nil;
    if ([view isKindOfClass:[UIScrollView class]]) scroll = static_cast<UIScrollView *>(view);
    NSArray *inside = [view subviews];
    if (!scroll && [inside count] && [[inside objectAtIndex:0] isKindOfClass:[UIScrollView class]])
        scroll = [inside objectAtIndex:0];
    if (!scroll) return;
    UIEdgeInsets inset = [scroll contentInset];
    CGFloat top = CGRectGetMaxY([state(controller).bar frame]);
    if (inset.top == top) return;
    bool atTop = [scroll contentOffset].y <= -inset.top;
    inset.top = top;
    [scroll setContentInset:inset];
    if (atTop) [scroll setContentOffset:{[scroll contentOffset].x, -top}];
}

void addPage(UINavigationController *controller, UIViewController *page) {
    UIView *pages = state(controller).pages;
    [[page view] setFrame:[pages bounds]];
    [[page view] setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [pages addSubview:[page view]];
    fitUnderBar(controller, page);
    [[page view] layoutIfNeeded];
}

void endTransition(UINavigationController *controller) {
    auto &mine = state(controller);
    UIViewController *left = std::exchange(mine.leaving, nil);
    if (!left) return;
    bool stays = std::count(mine.stack.begin(), mine.stack.end(), left) > 0;
    [[left view] removeFromSuperview];
    [[controller view] setUserInteractionEnabled:YES];
    sim::endAppearance(left, true);
    sim::endAppearance([controller topViewController], true);
    if (!stays) [left removeFromParentViewController];
    [left release];
    UIAccessibilityPostNotification(UIAccessibilityScreenChangedNotification, nil);
}

void slide(UINavigationController *controller, UIViewController *from, UIViewController *to, bool forward) {
    UIView *pages = state(controller).pages, *old = [from view], *fresh = [to view];
    CGRect rest = [pages bounds];
    CGRect outside = CGRectOffset(rest, rest.size.width, 0);
    CGRect aside = CGRectOffset(rest, -kParallax * rest.size.width, 0);
    if (!forward) [pages sendSubviewToBack:fresh];
    [UIView performWithoutAnimation:^{ [fresh setFrame:forward ? outside : aside]; }];
    [[controller view] setUserInteractionEnabled:NO];
    [UIView animateWithDuration:kSeconds
        delay:0
        options:UIViewAnimationOptionCurveEaseInOut
        animations:^{
            [fresh setFrame:rest];
            [old setFrame:forward ? aside : outside];
        }
        completion:^(BOOL) {
            if (state(controller).leaving == from) endTransition(controller);
        }];
}

// From the page that was shown to the one that is now on top. The stack has changed already.
void show(UINavigationController *controller, UIViewController *from, bool forward, bool animated) {
    auto &mine = state(controller);
    UIViewController *to = [controller topViewController];
    UINavigationItem *back = mine.stack.size() > 1 ? [mine.stack[mine.stack.size() - 2] navigationItem] : nil;
    [controller view];
    if (!mine.pages || from == to) return;
    endTransition(controller);
    bool visible = sim::state(controller).appearance == sim::Appearance::shown ||
                   sim::state(controller).appearance == sim::Appearance::appearing;
    animated = animated && visible && from && [[controller view] window];
    // A page finds its view in the size that it is to have.
    [[to view] setFrame:[mine.pages bounds]];
    if (visible) {
        sim::beginAppearance(from, false, animated);
        sim::beginAppearance(to, true, animated);
    }
    [mine.bar showItem:[to navigationItem] back:back direction:animated ? (forward ? 1 : -1) : 0];
    addPage(controller, to);
    mine.leaving = [from retain];
    if (animated) return slide(controller, from, to, forward);
    endTransition(controller);
    if (!from && visible) sim::endAppearance(to, false);
}

} // namespace

@implementation UINavigationController

- (instancetype)initWithRootViewController:(UIViewController *)root {
    if ((self = [super init])) [self pushViewController:root animated:NO];
    return self;
}

- (void)dealloc {
    auto &mine = state(self);
    [mine.bar setBackTarget:nil action:nullptr];
    [mine.bar showItem:nil back:nil direction:0];
    for (UIViewController *controller : mine.stack) [controller release];
    [mine.leaving release];
    [mine.bar release];
    [mine.pages release];
    delete &mine;
    _navigationControllerState = nullptr;
    [super dealloc];
}

- (void)loadView {
    [super loadView];
    auto &mine = state(self);
    UIView *view = [self view];
    [view setClipsToBounds:YES];
    mine.pages = [[UIView alloc] initWithFrame:[view bounds]];
    [mine.pages setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [view addSubview:mine.pages];
    mine.bar = [[UINavigationBar alloc] initWithFrame:CGRectZero];
    [mine.bar setBackTarget:self action:@selector(goBack)];
    [view addSubview:mine.bar];
    [self placeBar];
    if ([self topViewController]) show(self, nil, true, false);
}

- (void)placeBar {
    auto &mine = state(self);
    CGFloat width = [[self view] bounds].size.width;
    [mine.bar setFrame:CGRectMake(0, statusBarHeight(), width, sim::navigationBarHeight())];
}

- (void)viewDidLayoutSubviews {
    [super viewDidLayoutSubviews];
    [self placeBar];
    if ([self topViewController]) fitUnderBar(self, [self topViewController]);
}

// The bar changes its height before the pages hear of their new size.
- (void)willAnimateRotationToInterfaceOrientation:(UIInterfaceOrientation)orientation
                                         duration:(NSTimeInterval)duration {
    [super willAnimateRotationToInterfaceOrientation:orientation duration:duration];
    [self placeBar];
    if ([self topViewController]) fitUnderBar(self, [self topViewController]);
}

- (UINavigationBar *)navigationBar {
    [self view];
    return state(self).bar;
}

- (NSArray *)viewControllers {
    auto &stack = state(self).stack;
    return [NSArray arrayWithObjects:stack.data() count:stack.size()];
}
- (UIViewController *)topViewController {
    auto &stack = state(self).stack;
    return stack.empty() ? nil : stack.back();
}
- (UIViewController *)visibleViewController {
    UIViewController *presented = [self presentedViewController];
    return presented ? presented : [self topViewController];
}

- (NSArray *)visibleChildControllers {
    UIViewController *top = [self topViewController];
    return top ? [NSArray arrayWithObject:top] : [NSArray array];
}

- (void)pushViewController:(UIViewController *)controller animated:(BOOL)animated {
    auto &mine = state(self);
    if (!controller || std::count(mine.stack.begin(), mine.stack.end(), controller)) return;
    UIViewController *from = [self topViewController];
    mine.stack.push_back([controller retain]);
    [self addChildViewController:controller];
    if ([self isViewLoaded]) show(self, from, true, animated);
    [controller didMoveToParentViewController:self];
}

- (NSArray *)popTo:(size_t)count animated:(BOOL)animated {
    auto &mine = state(self);
    if (count == 0 || count >= mine.stack.size()) return nil;
    UIViewController *from = [self topViewController];
    NSMutableArray *gone = [NSMutableArray array];
    while (mine.stack.size() > count) {
        UIViewController *last = mine.stack.back();
        mine.stack.pop_back();
        [gone insertObject:last atIndex:0];
        [last willMoveToParentViewController:nil];
        if (last != from) [last removeFromParentViewController];
        [last release];
    }
    if ([self isViewLoaded]) {
        show(self, from, false, animated);
    } else {
        [from removeFromParentViewController];
    }
    return gone;
}

- (UIViewController *)popViewControllerAnimated:(BOOL)animated {
    return [[self popTo:state(self).stack.size() - 1 animated:animated] lastObject];
}
- (NSArray *)popToRootViewControllerAnimated:(BOOL)animated {
    return [self popTo:1 animated:animated];
}

- (void)goBack {
    [self popViewControllerAnimated:YES];
}

- (void)setViewControllers:(NSArray *)controllers {
    [self setViewControllers:controllers animated:NO];
}
- (void)setViewControllers:(NSArray *)controllers animated:(BOOL)animated {
    auto &mine = state(self);
    UIViewController *from = [[[self topViewController] retain] autorelease];
    auto before = mine.stack;
    mine.stack.clear();
    for (UIViewController *controller in controllers) {
        mine.stack.push_back([controller retain]);
        [self addChildViewController:controller];
    }
    for (UIViewController *controller : before) {
        if (controller != from && ![controllers containsObject:controller])
            [controller removeFromParentViewController];
        [controller release];
    }
    if ([self isViewLoaded]) show(self, from, true, animated);
}

@end
