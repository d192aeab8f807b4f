#include "ApplicationState.h"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "UIKit/Controllers/ControllerState.h"
#include "UIKit/Views/UIResponder+Further.h"
#include "UIKit/Views/ViewState.h"
#include "UIWindow+Further.h"

#include <UIKit/UIViewController.h>
#include <UIKit/UIWindow.h>

#include <algorithm>

const UIWindowLevel UIWindowLevelNormal = 0;
const UIWindowLevel UIWindowLevelStatusBar = 1000;
const UIWindowLevel UIWindowLevelAlert = 2000;

// From 8.0 on.
@interface UIWindow (Contexts)
- (BOOL)_shouldCreateContextAsSecure;
@end

namespace {

struct WindowState {
    UIWindowLevel level = UIWindowLevelNormal;
    UIViewController *controller = nil; // retained
    sim::WindowRole role = sim::WindowRole::overlay;
    uint64_t shown = 0;  // a later one lies above an earlier one of the same level
    bool secure = false; // its context
};

WindowState &state(UIWindow *window) { return sim::lazyState<WindowState>(window->_windowState); }

// Not retained: a window takes itself off.
std::vector<UIWindow *> &windows() {
    static std::vector<UIWindow *> list;
    return list;
}

UIWindow *keyWindow = nil;

// A window that was never shown counts as shown before all others.
void sortBackToFront(std::vector<UIWindow *> &list) {
    std::stable_sort(list.begin(), list.end(), [](UIWindow *a, UIWindow *b) {
        return std::pair(state(a).level, state(a).shown) < std::pair(state(b).level, state(b).shown);
    });
}

void createContext(UIWindow *window) {
    if ([window respondsToSelector:@selector(_shouldCreateContextAsSecure)])
        sim::setContextSecure(window, [window _shouldCreateContextAsSecure]);
}

} // namespace

namespace sim {

std::vector<UIWindow *> allWindows() { return windows(); }

std::vector<UIWindow *> visibleWindows() {
    std::vector<UIWindow *> result;
    std::copy_if(windows().begin(), windows().end(), std::back_inserter(result),
                 [](UIWindow *window) { return ![window isHidden]; });
    sortBackToFront(result);
    return result;
}

std::vector<UIWindow *> windowsBackToFront() {
    auto result = windows();
    sortBackToFront(result);
    return result;
}

std::vector<UIWindow *> displayedWindows() {
    if (!display().on) return {};
    auto result = visibleWindows();
    if (display().secureOnly)
        std::erase_if(result, [](UIWindow *window) { return !isContextSecure(window); });
    return result;
}

Display &display() {
    static Display shared;
    return shared;
}
void setContextSecure(UIWindow *window, bool secure) { ::state(window).secure = secure; }
bool isContextSecure(UIWindow *window) { return ::state(window).secure; }

void setRole(UIWindow *window, WindowRole role) { ::state(window).role = role; }
WindowRole role(UIWindow *window) { return ::state(window).role; }

} // namespace sim

@implementation UIWindow

- (instancetype)initWithFrame:(CGRect)frame {
    if (!(self = [super initWithFrame:frame])) return nil;
    windows().push_back(self);
    [super setHidden:YES];
    return self;
}

- (void)dealloc {
    std::erase(windows(), self);
    if (keyWindow == self) keyWindow = nil;
    [state(self).controller release];
    delete &state(self);
    [super dealloc];
}

- (void)setHidden:(BOOL)hidden {
    static uint64_t shown = 0;
    bool changes = [self isHidden] != hidden;
    if (changes && !hidden) {
        if (!state(self).shown) createContext(self);
        state(self).shown = ++shown;
    }
    [super setHidden:hidden];
    if (changes && state(self).controller) sim::changeAppearance(state(self).controller, !hidden);
}

- (UIWindowLevel)windowLevel {
    return state(self).level;
}
- (void)setWindowLevel:(UIWindowLevel)level {
    state(self).level = level;
}

- (UIViewController *)rootViewController {
    return state(self).controller;
}
- (void)setRootViewController:(UIViewController *)controller {
    auto &mine = state(self);
    if (controller == mine.controller) return;
    if (mine.controller && ![self isHidden]) sim::changeAppearance(mine.controller, false);
    [[mine.controller view] removeFromSuperview];
    sim::retainInto(mine.controller, controller);
    [[controller view] setFrame:[self bounds]];
    [self addSubview:[controller view]];
    if (controller && ![self isHidden]) sim::changeAppearance(controller, true);
}

- (BOOL)isKeyWindow {
    return keyWindow == self;
}
- (void)makeKeyWindow {
    keyWindow = self;
}
- (void)makeKeyAndVisible {
    [self setHidden:NO];
    [self makeKeyWindow];
}

- (UIResponder *)nextResponder {
    return [UIApplication sharedApplication];
}

@end
