// The simulator's side of UIViewController.
#pragma once

#include <UIKit/UINavigationController.h>

#include <vector>

namespace sim {

// Where a controller's view stands with the person who looks; callbacks come at each step.
enum class Appearance { gone, appearing, shown, disappearing };

struct ControllerState {
    UIView *view = nil;                       // retained
    NSString *title = nil;                    // retained
    UINavigationItem *item = nil;             // retained; made when it is first asked for
    UIViewController *parent = nil;           // not retained
    std::vector<UIViewController *> children; // retained
    UIViewController *presented = nil;        // retained
    UIViewController *presenting = nil;       // not retained
    UIModalPresentationStyle presentationStyle = UIModalPresentationFullScreen;
    Appearance appearance = Appearance::gone;
};

ControllerState &state(UIViewController *controller);

// The steps of a transition, told to the controller and those that it shows. A step that the controller is at
// already, or that it cannot take from where it is, is passed over.
void beginAppearance(UIViewController *controller, bool appears, bool animated);
void endAppearance(UIViewController *controller, bool animated);
// Both at once, for what happens without animation.
void changeAppearance(UIViewController *controller, bool appears);

} // namespace sim

@interface UIViewController (Containers)
// Those among its children that are on screen when it is; all, unless a container says otherwise.
- (NSArray *)visibleChildControllers;
@end
