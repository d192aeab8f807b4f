#include "ApplicationWindow.h"

#include "ApplicationScreen.h"
#include "Applications.h"
#include "Runtime/Process/Device.hpp"
#include "Runtime/Time/Clock.hpp"
#include "SpringBoard/Home/HomeViews.h"
#include "SpringBoard/Icons/IconImages.h"
#include "SpringBoard/Icons/Icons.h"
#include "SpringBoard/Lock/LockState.h"
#include "SpringBoard/System/BarStyle.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"

#include <UIKit/UIKit.h>

namespace {

constexpr NSTimeInterval kZoomDuration = 0.4, kFadeDuration = 0.15;

UIWindow *front = nil; // retained

UIWindow *makeWindow(SBApplication *application) {
    UIWindow *window =
        [[UIWindow alloc] initWithFrame:CGRectMake(0, 0, sim::device().width, sim::device().height)];
    sim::fillInterface(window);
    sim::setRole(window, sim::WindowRole::application);
    [window setClipsToBounds:YES];
    ApplicationScreenView *screen = [[ApplicationScreenView alloc] initWithFrame:[window bounds]];
    screen->_application = application;
    [screen setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [window addSubview:screen];
    [screen release];
    return window;
}

// The window laid over the icon, as narrow as it; over the screen's middle for an application without one in
// sight.
void shrink(UIWindow *window, SBApplication *application) {
    SBIconView *iconView = sim::visibleIconView(application);
    CGFloat width = [window bounds].size.width, factor = sim::iconSide() / width;
    CGPoint middle = {sim::device().width / 2, sim::device().height / 2}, icon = middle;
    if (SBIconImageView *image = [iconView _iconImageView]) {
        CGRect frame = [image convertRect:[image bounds] toView:nil];
        icon = CGPointApplyAffineTransform({CGRectGetMidX(frame), CGRectGetMidY(frame)},
                                           sim::state([[image window] layer]).model.toSuperlayer());
    }
    CGAffineTransform turned =
        CGAffineTransformConcat(CGAffineTransformMakeScale(factor, factor), sim::interfaceTransform());
    [window setTransform:CGAffineTransformConcat(
                             turned, CGAffineTransformMakeTranslation(icon.x - middle.x, icon.y - middle.y))];
    [[window layer] setCornerRadius:sim::kIconCornerRatio * width];
}

void fill(UIWindow *window) {
    sim::fillInterface(window);
    [[window layer] setCornerRadius:0];
}

// Half way through the zoom the larger part of the bar lies over what comes.
void styleStatusBar() {
    sim::Clock &clock = sim::Clock::shared();
    clock.schedule(clock.now() + sim::fromSeconds(kZoomDuration / 2), sim::Clock::Phase::animation,
                   sim::updateStatusBarStyle);
}

void close(UIWindow *window) {
    [window setHidden:YES];
    for (UIView *view in [window subviews]) [view removeFromSuperview];
    [window release];
}

} // namespace

namespace sim {

UIWindow *frontApplicationWindow() { return front; }
void focusFrontWindow() {
    if (!lockState().screenLocked) [(front ? front : homeWindow()) makeKeyWindow];
}

void showApplicationWindow(SBApplication *application) {
    UIWindow *below = front, *window = makeWindow(application);
    front = window;
    shrink(window, application);
    [window setAlpha:0];
    [window setHidden:NO];
    focusFrontWindow();
    [UIView animateWithDuration:kFadeDuration animations:^{ [window setAlpha:1]; }];
    [UIView animateWithDuration:kZoomDuration
        animations:^{ fill(window); }
        completion:^(BOOL) { close(below); }];
    styleStatusBar();
}

void hideApplicationWindow(SBApplication *application) {
    UIWindow *window = front;
    front = nil;
    focusFrontWindow();
    [UIView animateWithDuration:kZoomDuration
        animations:^{ shrink(window, application); }
        completion:^(BOOL) { close(window); }];
    [UIView animateWithDuration:kFadeDuration
                          delay:kZoomDuration - kFadeDuration
                        options:UIViewAnimationOptionCurveLinear
                     animations:^{ [window setAlpha:0]; }
                     completion:nil];
    styleStatusBar();
}

} // namespace sim
