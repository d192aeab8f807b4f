#include "PendixSettings/Icon/cards.h"

#include "PendixSettings/Core/PaneState.h"
#include "PendixSettings/Core/PaneTranslator.h"
#include "PendixSettings/Icon/Card.h"
#include "PendixSettings/Icon/ColorNames.h"
#include "PendixSettings/Icon/Preview.h"
#include "Tweak/Core/Screen.h"
#include "Tweak/Core/Settings.h"

#include <algorithm>

namespace pane = pendix::pane;

namespace {

constexpr CGFloat kPagesTop = 100;
constexpr NSTimeInterval kPreviewFade = 2; // seconds

// Beside the list on an iPad held sideways.
CGFloat shareOfWidth() {
    UIInterfaceOrientation orientation = [UIApplication sharedApplication].statusBarOrientation;
    const BOOL landscape = orientation == UIInterfaceOrientationLandscapeRight ||
                           orientation == UIInterfaceOrientationLandscapeLeft;
    return pendix::isPad() && landscape ? 2 : 1;
}

size_t indexOfColor(id name) {
    auto names = pane::colorNames();
    for (size_t i = 0; i < names.size(); ++i)
        if ([names[i] isEqual:name]) return i;
    return 0;
}

} // namespace

@implementation cards

- (instancetype)initWithSpecifier:(PSSpecifier *)specifier {
    self = [super initWithStyle:UITableViewCellStyleDefault
                reuseIdentifier:@"headerCell"
                      specifier:specifier];
    if (!self) return nil;
    const pane::CardLayout layout = pane::fitCards();
    pane::addPreview(self, layout.correction);
    [self makeCards:layout];
    [self addPages:layout];
    [self showStoredColor];
    self.backgroundColor = [UIColor clearColor];
    _controller.view.backgroundColor = [UIColor clearColor];
    [self animatePreview:NO];
    return self;
}

- (void)dealloc {
    _controller.delegate = nil;
    _controller.dataSource = nil;
    [_controller release];
    [controllers release];
    [super dealloc];
}

- (void)makeCards:(const pane::CardLayout &)layout {
    controllers = [NSMutableArray new];
    for (size_t i = 0; i < pane::colorNames().size(); ++i) {
        UIViewController *card = pane::newCard(i, layout);
        [controllers addObject:card];
        [card release];
    }
}

- (void)addPages:(const pane::CardLayout &)layout {
    _controller = [[UIPageViewController alloc]
        initWithTransitionStyle:UIPageViewControllerTransitionStyleScroll
          navigationOrientation:UIPageViewControllerNavigationOrientationHorizontal
                        options:nil];
    _controller.delegate = self;
    _controller.dataSource = self;
    const CGFloat share = shareOfWidth(), width = (pane::width - 4 * (layout.correction + 2)) / share;
    UIView *view = _controller.view;
    view.frame = CGRectMake(layout.pageLeft, kPagesTop, width, pane::height - kPagesTop);
    // The cell gets its size later. Where the pages begin with half the width they grow with it; everywhere
    // else they have theirs, and the cards follow one another without a gap.
    view.autoresizingMask = share > 1 ? UIViewAutoresizingFlexibleWidth : UIViewAutoresizingNone;
    [self addSubview:view];
}

- (void)showStoredColor {
    const size_t index = indexOfColor([self getValue]);
    UIViewController *card = [controllers objectAtIndex:index];
    [_controller setViewControllers:[NSArray arrayWithObject:card]
                          direction:UIPageViewControllerNavigationDirectionForward
                           animated:NO
                         completion:nil];
    [self showColorOf:card];
}

// What `apply` stores is what is seen.
- (void)showColorOf:(UIViewController *)card {
    pane::keep(pane::ciccia, pane::colorOfCard(card));
    pane::colorPreview(self, pane::ciccia);
}

- (id)getValue {
    NSString *key = pane::editedColorKey();
    return key ? pendix::setting(key) : nil;
}

- (void)animatePreview:(BOOL)shown {
    UIView *preview = pane::glowingPreview(self);
    if (!preview || !self.window) return;
    [UIView animateWithDuration:kPreviewFade
        animations:^{ preview.alpha = shown ? 1 : 0; }
        completion:^(BOOL finished) {
            if (finished) [self animatePreview:!shown];
        }];
}

- (void)didMoveToWindow {
    [super didMoveToWindow];
    [self animatePreview:NO];
}

- (CGFloat)preferredHeightForWidth:(CGFloat)width {
    return pane::height;
}

- (CGFloat)preferredHeightForWidth:(CGFloat)width inTableView:(id)tableView {
    return [self preferredHeightForWidth:width];
}

- (UIViewController *)cardAt:(NSUInteger)steps after:(UIViewController *)card {
    pane::blinkHint(card);
    return [controllers objectAtIndex:([controllers indexOfObject:card] + steps) % [controllers count]];
}

- (UIViewController *)pageViewController:(UIPageViewController *)pages
      viewControllerBeforeViewController:(UIViewController *)card {
    return [self cardAt:[controllers count] - 1 after:card];
}

- (UIViewController *)pageViewController:(UIPageViewController *)pages
       viewControllerAfterViewController:(UIViewController *)card {
    return [self cardAt:1 after:card];
}

// The cards are one element, and another one is chosen without a swipe.

- (BOOL)isAccessibilityElement {
    return YES;
}

- (UIAccessibilityTraits)accessibilityTraits {
    return UIAccessibilityTraitAdjustable;
}

- (NSString *)accessibilityLabel {
    NSString *key = pane::editedColorKey();
    return key ? pane::Translator(key) : nil;
}

- (NSString *)accessibilityValue {
    NSString *key = [@"color_" stringByAppendingString:pane::stringFromColor(pane::ciccia)];
    return pane::Translator(key);
}

// What of them is on the screen.
- (CGRect)accessibilityFrame {
    UIWindow *window = self.window;
    const CGRect screen = [window convertRect:window.bounds toView:self];
    CGRect seen = self.bounds;
    seen.size.height = std::min(CGRectGetMaxY(seen), CGRectGetMaxY(screen)) - seen.origin.y;
    return UIAccessibilityConvertFrameToScreenCoordinates(seen, self);
}

- (void)accessibilityIncrement {
    [self turnTo:1];
}

- (void)accessibilityDecrement {
    [self turnTo:[controllers count] - 1];
}

- (void)turnTo:(NSUInteger)steps {
    UIViewController *card = [self cardAt:steps after:[_controller.viewControllers firstObject]];
    [_controller setViewControllers:[NSArray arrayWithObject:card]
                          direction:UIPageViewControllerNavigationDirectionForward
                           animated:NO
                         completion:nil];
    [self showColorOf:card];
}

- (NSInteger)presentationCountForPageViewController:(UIPageViewController *)pages {
    for (UIView *view in pages.view.subviews)
        if ([view isKindOfClass:[UIPageControl class]]) view.hidden = YES;
    return static_cast<NSInteger>([controllers count]);
}

- (void)pageViewController:(UIPageViewController *)pages
         didFinishAnimating:(BOOL)finished
    previousViewControllers:(NSArray *)previous
        transitionCompleted:(BOOL)completed {
    [self showColorOf:[pages.viewControllers firstObject]];
    pane::blinkHint([previous firstObject]);
}

@end
