#include "StatusBarState.h"

#include "Runtime/Process/Device.hpp"
#include "StatusBarData.hpp"
#include "StockItems.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/UIKit+Further.h"

#include <algorithm>

namespace {

struct Bar {
    std::vector<UIStatusBarItem *> items; // retained
    UIStatusBarWindow *window = nil;      // retained, as what follows is by it
    UIStatusBarForegroundView *foreground = nil;
    UIStatusBarForegroundStyleAttributes *style = nil; // retained
};

Bar &bar() {
    static Bar shared;
    return shared;
}

UIStatusBarForegroundStyleAttributes *makeStyle(sim::StatusBarStyle style) {
    bool dark = style == sim::StatusBarStyle::darkContent;
    Class kind = style == sim::StatusBarStyle::lockScreen
                     ? [UIStatusBarLockScreenForegroundStyleAttributes class]
                     : [UIStatusBarForegroundStyleAttributes class];
    return [[kind alloc] initWithTintColor:dark ? [UIColor blackColor] : [UIColor whiteColor]];
}

} // namespace

@implementation _UIScrollsToTopInitiatorView

// Nothing that this touch could scroll to its top stands behind the bar.
- (BOOL)_touchShouldProduceReturnEvent {
    return NO;
}

@end

@implementation UIStatusBarBackgroundView
@end

@implementation UIStatusBar

- (instancetype)initWithFrame:(CGRect)frame {
    if (!(self = [super initWithFrame:frame])) return nil;
    CGRect bounds = [self bounds];
    for (Class part : {[UIStatusBarBackgroundView class], [UIStatusBarForegroundView class]}) {
        UIView *view = [[[part alloc] initWithFrame:bounds] autorelease];
        [view setAutoresizingMask:UIViewAutoresizingFlexibleWidth];
        [view setOpaque:NO];
        [self addSubview:view];
    }
    return self;
}

// Only while a call or the like goes on in another application, which none does.
- (BOOL)_touchShouldProduceReturnEvent {
    return NO;
}

- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
    if (![self _touchShouldProduceReturnEvent]) [super touchesEnded:touches withEvent:event];
}

@end

@implementation UIStatusBarWindow

// The window covers the screen; only the bar takes touches.
- (BOOL)pointInside:(CGPoint)point withEvent:(UIEvent *)event {
    for (UIView *view in [self subviews])
        if ([view pointInside:[view convertPoint:point fromView:self] withEvent:event]) return YES;
    return NO;
}

@end

namespace sim {

const std::vector<UIStatusBarItem *> &statusBarItems() { return bar().items; }

void addStatusBarItem(UIStatusBarItem *item) {
    auto &items = bar().items;
    if (!item || std::find(items.begin(), items.end(), item) != items.end()) return;
    items.push_back([item retain]);
    [bar().foreground synchronizeItems];
}

void removeStatusBarItem(UIStatusBarItem *item) {
    if (std::erase(bar().items, item) == 0) return;
    [bar().foreground synchronizeItems];
    [item release];
}

void refreshStatusBarItem(UIStatusBarItem *item) {
    if (statusBarItemView(item)) [bar().foreground updateData];
}

UIStatusBarItemView *statusBarItemView(UIStatusBarItem *item) { return [bar().foreground viewForItem:item]; }

UIStatusBarWindow *showStatusBar() {
    if (bar().window) return bar().window;
    for (UIStatusBarItem *item : stockStatusBarItems()) bar().items.push_back([item retain]);
    UIStatusBarWindow *window =
        [[UIStatusBarWindow alloc] initWithFrame:CGRectMake(0, 0, device().width, device().height)];
    [window setWindowLevel:UIWindowLevelStatusBar];
    setRole(window, WindowRole::statusBar);
    CGRect frame = CGRectMake(0, 0, device().width, kStatusBarHeight);
    UIStatusBar *view = [[[UIStatusBar alloc] initWithFrame:frame] autorelease];
    [view setAutoresizingMask:UIViewAutoresizingFlexibleWidth];
    [window addSubview:view];
    bar().window = window;
    bar().foreground = [[view subviews] objectAtIndex:1];
    setStatusBarStyle(StatusBarStyle::lightContent);
    [bar().foreground synchronizeItems];
    [window setHidden:NO];
    everyMinute([] { [bar().foreground updateData]; });
    return window;
}

void setStatusBarStyle(StatusBarStyle style) {
    [bar().style release];
    bar().style = makeStyle(style);
    layOutStatusBarAnew();
}

void layOutStatusBarAnew() { [bar().foreground applyStyle:bar().style]; }

UIStatusBarForegroundStyleAttributes *statusBarStyle() { return bar().style; }

} // namespace sim
