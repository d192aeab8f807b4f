#include "UIKit/Views/ViewState.h"

#include <UIKit/UIScreen.h>
#include <UIKit/UIViewController.h>

namespace {

struct ControllerState {
    UIView *view = nil;    // retained
    NSString *title = nil; // retained
};

ControllerState &controllerState(UIViewController *controller) {
    if (!controller->_controllerState) controller->_controllerState = new ControllerState;
    return *static_cast<ControllerState *>(controller->_controllerState);
}

} // namespace

@implementation UIViewController

- (void)dealloc {
    auto &mine = controllerState(self);
    if (mine.view) sim::state(mine.view).controller = nil;
    [mine.view release];
    [mine.title release];
    delete &mine;
    [super dealloc];
}

// The view is made when it is first asked for.
- (UIView *)view {
    auto &mine = controllerState(self);
    if (!mine.view) {
        [self loadView];
        if (mine.view) [self viewDidLoad];
    }
    return mine.view;
}
- (void)setView:(UIView *)view {
    auto &mine = controllerState(self);
    if (view == mine.view) return;
    if (mine.view) sim::state(mine.view).controller = nil;
    [view retain];
    [mine.view release];
    mine.view = view;
    if (view) sim::state(view).controller = self;
}

- (void)loadView {
    UIView *view = [[UIView alloc] initWithFrame:[[UIScreen mainScreen] bounds]];
    [view setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [self setView:view];
    [view release];
}

- (NSString *)title {
    return controllerState(self).title;
}
- (void)setTitle:(NSString *)title {
    NSString *copy = [title copy];
    [controllerState(self).title release];
    controllerState(self).title = copy;
}

- (UIResponder *)nextResponder {
    return [controllerState(self).view superview];
}

- (void)viewDidLoad {
}
- (void)viewWillAppear:(BOOL)animated {
}
- (void)viewDidAppear:(BOOL)animated {
}
- (void)viewWillDisappear:(BOOL)animated {
}
- (void)viewDidDisappear:(BOOL)animated {
}

@end
