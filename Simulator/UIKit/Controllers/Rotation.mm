#include "Rotation.h"

#include "ControllerState.h"
#include "Runtime/Process/Device.hpp"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/Views/ViewState.h"
#include "UIViewController+Further.h"

#include <UIKit/UIDevice.h>
#include <UIKit/UIScreen.h>

using sim::state;

namespace {

constexpr double kQuarterTurnSeconds = 0.4;

bool isLandscape(UIInterfaceOrientation orientation) {
    return orientation == UIInterfaceOrientationLandscapeLeft ||
           orientation == UIInterfaceOrientationLandscapeRight;
}

// The controller that fills the screen and so decides.
UIViewController *deciding(UIWindow *window) {
    UIViewController *controller = [window rootViewController];
    while (controller && state(controller).presented) controller = state(controller).presented;
    return controller;
}

UIWindow *applicationWindow() {
    for (UIWindow *window : sim::allWindows())
        if (sim::role(window) == sim::WindowRole::application && [window rootViewController]) return window;
    return nil;
}

// A bit counts when the orientation's own bit of the mask is set.
bool allows(UIViewController *controller, UIInterfaceOrientation orientation) {
    if (!controller) return true;
    return [controller shouldAutorotate] &&
           ([controller supportedInterfaceOrientations] & (NSUInteger{1} << orientation));
}

// From 8.0 on a phone held across has no status bar.
void updateStatusBar(UIInterfaceOrientation orientation) {
    bool hidden =
        !sim::device().pad && sim::device().version >= sim::Version{8, 0} && isLandscape(orientation);
    sim::setStatusBarHidden(hidden);
    [[[UIApplication sharedApplication] statusBarWindow] setHidden:hidden];
}

// The controller, what it shows, and all that it covers.
void forEachController(UIViewController *controller, void (^visit)(UIViewController *)) {
    if (!controller) return;
    visit(controller);
    for (UIViewController *child in [controller visibleChildControllers]) forEachController(child, visit);
}

} // namespace

namespace sim {

void turnInterface(UIInterfaceOrientation next) {
    UIInterfaceOrientation before = [[UIApplication sharedApplication] statusBarOrientation];
    UIWindow *main = applicationWindow();
    UIViewController *controller = deciding(main);
    if (next == before || !allows(controller, next)) return;
    bool half = isLandscape(next) == isLandscape(before);
    double seconds = half ? 2 * kQuarterTurnSeconds : kQuarterTurnSeconds;
    forEachController(controller, ^(UIViewController *each) {
        [each willRotateToInterfaceOrientation:next duration:seconds];
    });
    setInterfaceOrientation(next);
    updateStatusBar(next);
    [main setUserInteractionEnabled:NO];
    [UIView animateWithDuration:seconds
        animations:^{
            for (UIWindow *window : allWindows()) fillInterface(window);
            layoutPendingViews();
            forEachController(controller, ^(UIViewController *each) {
                [each willAnimateRotationToInterfaceOrientation:next duration:seconds];
            });
            layoutPendingViews();
        }
        completion:^(BOOL) {
            [main setUserInteractionEnabled:YES];
            forEachController(controller,
                              ^(UIViewController *each) { [each didRotateFromInterfaceOrientation:before]; });
        }];
}

} // namespace sim

@implementation UIViewController (UIViewControllerRotation)

- (UIInterfaceOrientation)interfaceOrientation {
    return [[UIApplication sharedApplication] statusBarOrientation];
}

- (BOOL)shouldAutorotate {
    return YES;
}

- (NSUInteger)supportedInterfaceOrientations {
    bool pad = [[UIDevice currentDevice] userInterfaceIdiom] == UIUserInterfaceIdiomPad;
    return pad ? UIInterfaceOrientationMaskAll : UIInterfaceOrientationMaskAllButUpsideDown;
}

- (void)willRotateToInterfaceOrientation:(UIInterfaceOrientation)orientation
                                duration:(NSTimeInterval)duration {
}
- (void)willAnimateRotationToInterfaceOrientation:(UIInterfaceOrientation)orientation
                                         duration:(NSTimeInterval)duration {
}
- (void)didRotateFromInterfaceOrientation:(UIInterfaceOrientation)orientation {
}

@end
