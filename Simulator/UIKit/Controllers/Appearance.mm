#include "ControllerState.h"

#include "UIViewController+Further.h"

namespace sim {

namespace {

void tell(UIViewController *controller, Appearance step, bool animated) {
    switch (step) {
    case Appearance::appearing:
        return [controller viewWillAppear:animated];
    case Appearance::shown:
        return [controller viewDidAppear:animated];
    case Appearance::disappearing:
        return [controller viewWillDisappear:animated];
    case Appearance::gone:
        return [controller viewDidDisappear:animated];
    }
}

// The view is loaded first: a controller hears that its view appears after it has heard that it was loaded.
void step(UIViewController *controller, Appearance next, bool animated) {
    [controller view];
    state(controller).appearance = next;
    tell(controller, next, animated);
    for (UIViewController *child in [controller visibleChildControllers]) {
        if (next == Appearance::appearing || next == Appearance::disappearing) {
            beginAppearance(child, next == Appearance::appearing, animated);
        } else {
            endAppearance(child, animated);
        }
    }
}

} // namespace

void beginAppearance(UIViewController *controller, bool appears, bool animated) {
    if (!controller) return;
    Appearance now = state(controller).appearance;
    bool visible = now == Appearance::appearing || now == Appearance::shown;
    if (visible == appears) return;
    [[controller retain] autorelease];
    step(controller, appears ? Appearance::appearing : Appearance::disappearing, animated);
}

void endAppearance(UIViewController *controller, bool animated) {
    if (!controller) return;
    Appearance now = state(controller).appearance;
    if (now != Appearance::appearing && now != Appearance::disappearing) return;
    [[controller retain] autorelease];
    step(controller, now == Appearance::appearing ? Appearance::shown : Appearance::gone, animated);
}

void changeAppearance(UIViewController *controller, bool appears) {
    beginAppearance(controller, appears, false);
    endAppearance(controller, false);
}

} // namespace sim

@implementation UIViewController (Containers)

- (NSArray *)visibleChildControllers {
    return [self childViewControllers];
}

@end
