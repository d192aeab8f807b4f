#include "Runtime/Objc/LazyState.hpp"
#include "UIKit/Controllers/ControllerState.h"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"
#include "UIPageViewController+Further.h"

#include <UIKit/UIPageViewController.h>
#include <UIKit/UIScrollView.h>

#include <algorithm>
#include <objc/blocks_runtime.h>

// Lays its pages out side by side.
@interface _UIQueuingScrollView : UIScrollView {
@public
    UIPageViewController *_owner; // not retained
}
@end

@interface UIPageViewController (Paging) <UIScrollViewDelegate>
- (void)arrangePages;
@end

namespace {

constexpr CGFloat kPageControlHeight = 37;

struct PagingState {
    UIPageViewControllerTransitionStyle style = UIPageViewControllerTransitionStyleScroll;
    id<UIPageViewControllerDelegate> delegate = nil;              // not retained
    id<UIPageViewControllerDataSource> dataSource = nil;          // not retained
    UIViewController *before = nil, *current = nil, *after = nil; // retained
    _UIQueuingScrollView *scroll = nil;                           // retained
    UIPageControl *dots = nil;                                    // retained by the view
    bool asked = false;   // the data source for the pages at both sides
    bool turning = false; // under a finger, or settling after it
    bool arranging = false;
};

PagingState &state(UIPageViewController *controller) {
    return sim::lazyState<PagingState>(controller->_pageViewControllerState);
}

void setPage(UIPageViewController *owner, UIViewController *&slot, UIViewController *page) {
    if (slot == page) return;
    UIViewController *old = slot;
    if (page) {
        [owner addChildViewController:page];
        [page retain];
    }
    slot = page;
    auto &mine = state(owner);
    bool elsewhere = old && (old == mine.before || old == mine.current || old == mine.after);
    if (old && !elsewhere) {
        if ([old isViewLoaded] && [[old view] superview] == mine.scroll) [[old view] removeFromSuperview];
        [old removeFromParentViewController];
    }
    [old release];
    if (page) [page didMoveToParentViewController:owner];
}

// The pages at both sides, asked for as soon as the page stands still.
void askForNeighbours(UIPageViewController *owner) {
    auto &mine = state(owner);
    if (mine.asked || !mine.current || !mine.dataSource) return;
    mine.asked = true;
    UIViewController *before = [mine.dataSource pageViewController:owner
                                viewControllerBeforeViewController:mine.current];
    setPage(owner, mine.before, before == mine.current ? nil : before);
    UIViewController *after = [mine.dataSource pageViewController:owner
                                viewControllerAfterViewController:mine.current];
    // With two pages in a ring the one neighbour stands on this side only.
    setPage(owner, mine.after, after == mine.current || after == mine.before ? nil : after);
}

void updateDots(UIPageViewController *owner) {
    auto &mine = state(owner);
    id<UIPageViewControllerDataSource> source = mine.dataSource;
    bool wanted = [source respondsToSelector:@selector(presentationCountForPageViewController:)] &&
                  [source respondsToSelector:@selector(presentationIndexForPageViewController:)];
    if (!wanted) return;
    CGSize size = [[owner view] bounds].size;
    if (!mine.dots) {
        mine.dots = [[[UIPageControl alloc] initWithFrame:CGRectZero] autorelease];
        [mine.dots setUserInteractionEnabled:NO];
        [[owner view] addSubview:mine.dots];
    }
    [mine.dots setFrame:CGRectMake(0, size.height - kPageControlHeight, size.width, kPageControlHeight)];
    [mine.dots setNumberOfPages:[source presentationCountForPageViewController:owner]];
    [mine.dots setCurrentPage:[source presentationIndexForPageViewController:owner]];
}

CGFloat restingOffset(const PagingState &paging) {
    return paging.before ? [paging.scroll bounds].size.width : 0;
}

} // namespace

@implementation _UIQueuingScrollView
- (void)layoutSubviews {
    [super layoutSubviews];
    [_owner arrangePages];
}
@end

@implementation UIPageViewController

- (instancetype)initWithTransitionStyle:(UIPageViewControllerTransitionStyle)style
                  navigationOrientation:(UIPageViewControllerNavigationOrientation)orientation
                                options:(NSDictionary *)options {
    if ((self = [super init])) state(self).style = style;
    return self;
}

- (void)dealloc {
    auto &mine = state(self);
    if (mine.scroll) mine.scroll->_owner = nil;
    [mine.scroll setDelegate:nil];
    for (UIViewController **slot : {&mine.before, &mine.current, &mine.after}) setPage(self, *slot, nil);
    [mine.scroll release];
    delete &mine;
    _pageViewControllerState = nullptr;
    [super dealloc];
}

- (void)loadView {
    [super loadView];
    auto &mine = state(self);
    mine.scroll = [[_UIQueuingScrollView alloc] initWithFrame:[[self view] bounds]];
    mine.scroll->_owner = self;
    [mine.scroll setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [mine.scroll setPagingEnabled:YES];
    [mine.scroll setShowsHorizontalScrollIndicator:NO];
    [mine.scroll setShowsVerticalScrollIndicator:NO];
    [mine.scroll setOpaque:NO];
    [mine.scroll setDelegate:self];
    [[self view] addSubview:mine.scroll];
}

- (UIPageViewControllerTransitionStyle)transitionStyle {
    return state(self).style;
}

- (id<UIPageViewControllerDelegate>)delegate {
    return state(self).delegate;
}
- (void)setDelegate:(id<UIPageViewControllerDelegate>)delegate {
    state(self).delegate = delegate;
}
- (id<UIPageViewControllerDataSource>)dataSource {
    return state(self).dataSource;
}
- (void)setDataSource:(id<UIPageViewControllerDataSource>)dataSource {
    auto &mine = state(self);
    mine.dataSource = dataSource;
    mine.asked = false;
    [mine.scroll setNeedsLayout];
}

- (NSArray *)viewControllers {
    UIViewController *current = state(self).current;
    return current ? [NSArray arrayWithObject:current] : [NSArray array];
}

- (NSArray *)visibleChildControllers {
    return [self viewControllers];
}

// Without the slide that a finger makes: pages set by the program are there at once.
- (void)setViewControllers:(NSArray *)viewControllers
                 direction:(UIPageViewControllerNavigationDirection)direction
                  animated:(BOOL)animated
                completion:(void (^)(BOOL))completion {
    [self view];
    auto &mine = state(self);
    UIViewController *next = [viewControllers count] ? [viewControllers objectAtIndex:0] : nil;
    UIViewController *old = [[mine.current retain] autorelease];
    bool visible = sim::state(self).appearance == sim::Appearance::shown;
    if (visible && old != next) sim::changeAppearance(old, false);
    setPage(self, mine.before, nil);
    setPage(self, mine.after, nil);
    setPage(self, mine.current, next);
    if (visible && old != next) sim::changeAppearance(next, true);
    mine.asked = false;
    [mine.scroll setNeedsLayout];
    if (completion) completion(YES);
}

@end

@implementation UIPageViewController (Paging)

- (void)arrangePages {
    auto &mine = state(self);
    if (mine.turning || mine.arranging) return;
    mine.arranging = true;
    askForNeighbours(self);
    CGSize size = [mine.scroll bounds].size;
    CGFloat x = 0;
    for (UIViewController *page : {mine.before, mine.current, mine.after}) {
        if (!page) continue;
        if ([[page view] superview] != mine.scroll) [mine.scroll addSubview:[page view]];
        [[page view] setFrame:CGRectMake(x, 0, size.width, size.height)];
        x += size.width;
    }
    [mine.scroll setContentSize:CGSizeMake(x, size.height)];
    [mine.scroll setContentOffset:{restingOffset(mine), 0}];
    updateDots(self);
    mine.arranging = false;
}

- (void)scrollViewWillBeginDragging:(UIScrollView *)scrollView {
    auto &mine = state(self);
    if (mine.turning) return;
    mine.turning = true;
    NSMutableArray *pending = [NSMutableArray array];
    CGFloat way = [[scrollView panGestureRecognizer] translationInView:scrollView].x;
    UIViewController *next = way > 0 ? mine.before : mine.after;
    if (next) [pending addObject:next];
    if ([pending count] && [mine.delegate respondsToSelector:@selector(pageViewController:
                                                                 willTransitionToViewControllers:)])
        [mine.delegate pageViewController:self willTransitionToViewControllers:pending];
}

- (void)scrollViewDidEndDragging:(UIScrollView *)scrollView willDecelerate:(BOOL)decelerate {
    if (!decelerate) [self settle];
}

- (void)scrollViewDidEndDecelerating:(UIScrollView *)scrollView {
    if (![scrollView isDragging]) [self settle];
}

// The page that the content came to rest on becomes the current one.
- (void)settle {
    auto &mine = state(self);
    if (!mine.turning) return;
    mine.turning = false;
    CGFloat width = [mine.scroll bounds].size.width,
            moved = [mine.scroll contentOffset].x - restingOffset(mine);
    UIViewController *next = moved > width / 2 ? mine.after : moved < -width / 2 ? mine.before : nil;
    UIViewController *previous = [[mine.current retain] autorelease];
    if (next) {
        [[next retain] autorelease];
        sim::changeAppearance(previous, false);
        bool forward = next == mine.after;
        // In this order each page that stays has a place at any moment.
        setPage(self, forward ? mine.before : mine.after, previous);
        setPage(self, mine.current, next);
        setPage(self, forward ? mine.after : mine.before, nil);
        sim::changeAppearance(next, true);
        mine.asked = false;
        [self arrangePages];
    }
    if ([mine.delegate respondsToSelector:@selector
                       (pageViewController:didFinishAnimating:previousViewControllers:transitionCompleted:)])
        [mine.delegate pageViewController:self
                       didFinishAnimating:YES
                  previousViewControllers:[NSArray arrayWithObject:previous]
                      transitionCompleted:next != nil];
}

@end
