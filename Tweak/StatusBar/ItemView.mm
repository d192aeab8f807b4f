#include "Tweak/Core/Accessibility/Wording.h"
#include "Tweak/Core/Names.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"
#include "Tweak/StatusBar/Replacements.h"
#include "Tweak/StatusBar/StatusBar.h"

namespace pendix {

namespace {

constexpr int kForeground = 1; // index among the status bar's subviews

} // namespace

BOOL added::isPendix(UIResponder *, SEL, id view) {
    if (![view respondsToSelector:@selector(item)]) return NO;
    NSString *name = [[(UIStatusBarItemView *)view item] indicatorName];
    return [name isEqual:names::badgeImage] || [name isEqual:names::switcherImage];
}

UIView *added::getForeGround(SpringBoard *, SEL, int index) {
    NSArray *bars = window1.subviews;
    UIView *bar = [bars count] >= 1 ? [bars objectAtIndex:0] : nil;
    if ([bar.subviews count] >= 2) return [bar.subviews objectAtIndex:index];
    NSLog(@"<Pendix> An error has occured while hooking statusbar foreground");
    return nil;
}

NSArray *added::statusBarItemViews(SpringBoard *self, SEL) {
    return [self getForeGround:kForeground].subviews;
}

UIStatusBarItemView *added::pendix(SpringBoard *self, SEL) {
    for (UIStatusBarItemView *view in [self statusBarItemViews])
        if ([self isPendix:view]) return view;
    NSLog(@"<Pendix> An error has occured while hooking Pendix statusbar icon!");
    return nil;
}

// The extension's view answers a tap and nothing else.
id hooked::initWithItem(UIStatusBarItemView *self, SEL _cmd, UIStatusBarItem *item, id data, int actions,
                        id style) {
    UIStatusBarItemView *view = original::initWithItem(self, _cmd, item, data, actions, style);
    if (![view isPendix:view]) return view;
    for (UIGestureRecognizer *recognizer in view.gestureRecognizers)
        [view removeGestureRecognizer:recognizer];
    UITapGestureRecognizer *tap = [[UITapGestureRecognizer alloc] initWithTarget:Spring
                                                                          action:@selector(tap)];
    [view addGestureRecognizer:tap];
    [tap release];
    view.isAccessibilityElement = YES;
    view.accessibilityLabel = @"Pendix";
    view.accessibilityTraits = UIAccessibilityTraitButton;
    return view;
}

// Of the extension's own: how many applications wait, unless the lock keeps it.
NSString *hooked::accessibilityValue(UIStatusBarItemView *self, SEL _cmd) {
    if (![self isPendix:self]) return original::accessibilityValue(self, _cmd);
    return panelWouldAsk() ? nil : waitingText(applicationsWaiting(), isOn(keys::runningMode));
}

// The status bar switches its item views off; they stay touchable, all of them.
void hooked::setUserInteractionEnabled(UIStatusBarItemView *self, SEL _cmd, BOOL) {
    original::setUserInteractionEnabled(self, _cmd, YES);
}

// Otherwise the bar would keep touches for its own "scroll to top".
BOOL hooked::touchShouldProduceReturnEvent(UIStatusBar *, SEL) { return YES; }

} // namespace pendix
