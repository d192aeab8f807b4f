// The object that applications hold; what is seen is its panel, in a window of its own.
#include "AlertPanel.h"

#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "UIAlertView+Further.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/CoreGraphics/CGGeometry+Further.h"
#include "UIKit/Views/ViewState.h"

#include <UIKit/UIAccessibility.h>
#include <UIKit/UIAlertView.h>

#include <algorithm>
#include <cstdarg>
#include <utility>
#include <vector>

namespace {

constexpr double kSeconds = 0.25;
constexpr CGFloat kGrown = 1.15; // what it shrinks from as it comes

struct AlertState {
    NSString *title = nil, *message = nil; // retained
    NSMutableArray *buttons = nil;         // retained
    id delegate = nil;                     // not retained
    NSInteger cancel = -1;
    AlertPanel *panel = nil; // retained by the window; while it is shown
};

AlertState &state(UIAlertView *alert) { return sim::lazyState<AlertState>(alert->_alertViewState); }

// Those that have been shown and not answered, the last on top; retained.
std::vector<UIAlertView *> &waiting() {
    static std::vector<UIAlertView *> list;
    return list;
}

AlertWindow *window = nil; // for the life of the process

void tell(UIAlertView *alert, SEL selector, NSInteger index) {
    id delegate = state(alert).delegate;
    if (![delegate respondsToSelector:selector]) return;
    auto send =
        reinterpret_cast<void (*)(id, SEL, UIAlertView *, NSInteger)>([delegate methodForSelector:selector]);
    send(delegate, selector, alert, index);
}

void tell(UIAlertView *alert, SEL selector) {
    id delegate = state(alert).delegate;
    if ([delegate respondsToSelector:selector]) [delegate performSelector:selector withObject:alert];
}

void prepareWindow() {
    if (!window) {
        window = [[AlertWindow alloc] initWithFrame:CGRectZero];
        [window setWindowLevel:UIWindowLevelAlert];
        sim::setRole(window, sim::WindowRole::alert);
    }
    sim::fillInterface(window);
    [window setHidden:NO];
}

void showPanel(UIAlertView *alert) {
    auto &mine = state(alert);
    prepareWindow();
    bool first = [[window subviews] count] == 0;
    mine.panel = [[[AlertPanel alloc] initWithTitle:mine.title
                                            message:mine.message
                                            buttons:mine.buttons
                                             cancel:mine.cancel] autorelease];
    AlertPanel *panel = mine.panel;
    [panel setTarget:alert];
    [window addSubview:panel];
    [window layoutIfNeeded];
    [panel setAlpha:0];
    [panel setTransform:CGAffineTransformMakeScale(kGrown, kGrown)];
    if (first) [window setBackgroundColor:[UIColor colorWithWhite:0 alpha:0]];
    [UIView animateWithDuration:kSeconds
        animations:^{
            [window setBackgroundColor:[UIColor colorWithWhite:0 alpha:0.4]];
            [panel setAlpha:1];
            [panel setTransform:CGAffineTransformIdentity];
        }
        completion:^(BOOL) {
            tell(alert, @selector(didPresentAlertView:));
            UIAccessibilityPostNotification(UIAccessibilityScreenChangedNotification, nil);
        }];
}

// `last`: nothing waits behind it, so the dimming goes too.
void hidePanel(UIAlertView *alert, bool animated, bool last, void (^done)(void)) {
    AlertPanel *panel = std::exchange(state(alert).panel, nil);
    [panel setTarget:nil];
    void (^end)(BOOL) = ^(BOOL) {
        [panel removeFromSuperview];
        if (waiting().empty()) [window setHidden:YES];
        done();
    };
    if (!animated) return end(YES);
    [panel setUserInteractionEnabled:NO];
    [UIView animateWithDuration:kSeconds
                     animations:^{
                         [panel setAlpha:0];
                         if (last) [window setBackgroundColor:[UIColor colorWithWhite:0 alpha:0]];
                     }
                     completion:end];
}

} // namespace

@implementation UIAlertView

- (instancetype)initWithTitle:(NSString *)title
                      message:(NSString *)message
                     delegate:(id)delegate
            cancelButtonTitle:(NSString *)cancelButtonTitle
            otherButtonTitles:(NSString *)otherButtonTitles, ... {
    if (!(self = [super initWithFrame:CGRectZero])) return nil;
    auto &mine = state(self);
    mine.title = [title copy];
    mine.message = [message copy];
    mine.delegate = delegate;
    mine.buttons = [NSMutableArray new];
    if (cancelButtonTitle) mine.cancel = [self addButtonWithTitle:cancelButtonTitle];
    va_list more;
    va_start(more, otherButtonTitles);
    for (NSString *each = otherButtonTitles; each; each = va_arg(more, NSString *))
        [self addButtonWithTitle:each];
    va_end(more);
    return self;
}

- (instancetype)initWithFrame:(CGRect)frame {
    if ((self = [super initWithFrame:frame])) state(self).buttons = [NSMutableArray new];
    return self;
}

- (void)dealloc {
    auto &mine = state(self);
    [mine.title release];
    [mine.message release];
    [mine.buttons release];
    delete &mine;
    [super dealloc];
}

- (id)delegate {
    return state(self).delegate;
}
- (void)setDelegate:(id)delegate {
    state(self).delegate = delegate;
}

- (NSString *)title {
    return state(self).title;
}
- (void)setTitle:(NSString *)title {
    sim::copyInto(state(self).title, title);
}
- (NSString *)message {
    return state(self).message;
}
- (void)setMessage:(NSString *)message {
    sim::copyInto(state(self).message, message);
}

- (NSInteger)numberOfButtons {
    return static_cast<NSInteger>([state(self).buttons count]);
}
- (NSInteger)addButtonWithTitle:(NSString *)title {
    [state(self).buttons addObject:title ? title : @""];
    return [self numberOfButtons] - 1;
}
- (NSString *)buttonTitleAtIndex:(NSInteger)index {
    return [state(self).buttons objectAtIndex:static_cast<NSUInteger>(index)];
}
- (NSInteger)cancelButtonIndex {
    return state(self).cancel;
}
- (void)setCancelButtonIndex:(NSInteger)index {
    state(self).cancel = index;
}

- (BOOL)isVisible {
    return state(self).panel != nil;
}

- (void)show {
    auto &list = waiting();
    if (std::count(list.begin(), list.end(), self)) return;
    if (!list.empty()) hidePanel(list.back(), true, false, ^{});
    list.push_back([self retain]);
    tell(self, @selector(willPresentAlertView:));
    showPanel(self);
}

- (void)buttonWasPressed:(NSInteger)index {
    [[self retain] autorelease];
    tell(self, @selector(alertView:clickedButtonAtIndex:), index);
    [self dismissWithClickedButtonIndex:index animated:YES];
}

- (void)dismissWithClickedButtonIndex:(NSInteger)index animated:(BOOL)animated {
    auto &list = waiting();
    if (std::erase(list, self) == 0) return;
    tell(self, @selector(alertView:willDismissWithButtonIndex:), index);
    bool shown = [self isVisible];
    UIAlertView *next = shown && !list.empty() ? list.back() : nil;
    hidePanel(self, animated, !next, ^{
        tell(self, @selector(alertView:didDismissWithButtonIndex:), index);
        [self autorelease];
    });
    if (next) showPanel(next);
}

@end

namespace sim {
UIAlertView *topmostAlert() { return waiting().empty() ? nil : waiting().back(); }
} // namespace sim
