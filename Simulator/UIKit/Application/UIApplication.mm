#include "ApplicationState.h"

#include "Runtime/Process/Device.hpp"
#include "Runtime/Process/Events.hpp"
#include "Runtime/Time/Clock.hpp"
#include "UIKit/Accessibility/VoiceOver.h"
#include "UIKit/Views/ViewState.h"

NSString *const UITrackingRunLoopMode = @"UITrackingRunLoopMode";

namespace {

UIApplication *shared = nil;
UIInterfaceOrientation interfaceOrientation = UIInterfaceOrientationPortrait;
bool statusBarHidden = false;

} // namespace

namespace sim {

void setSharedApplication(UIApplication *application) { shared = application; }
void setInterfaceOrientation(UIInterfaceOrientation orientation) { interfaceOrientation = orientation; }
void setStatusBarHidden(bool hidden) { statusBarHidden = hidden; }

void installRunLoop() {
    Clock::shared().onCommit([] {
        layoutPendingViews();
        commitAnimations();
        speakPosted();
    });
}

} // namespace sim

@implementation UIApplication

+ (UIApplication *)sharedApplication {
    return shared;
}

- (UIWindow *)keyWindow {
    for (UIWindow *window : sim::allWindows())
        if ([window isKeyWindow]) return window;
    return nil;
}

- (NSArray *)windows {
    auto list = sim::windowsBackToFront();
    return [NSArray arrayWithObjects:list.data() count:list.size()];
}

- (UIInterfaceOrientation)statusBarOrientation {
    return interfaceOrientation;
}

- (BOOL)isStatusBarHidden {
    return statusBarHidden;
}

- (CGRect)statusBarFrame {
    constexpr CGFloat kHeight = 20;
    return statusBarHidden ? CGRectZero : CGRectMake(0, 0, sim::device().width, kHeight);
}

- (void)cancelAllLocalNotifications {
    sim::recordEvent("notifications_cancelled");
}

@end

@implementation UIApplication (Private)

- (UIWindow *)statusBarWindow {
    for (UIWindow *window : sim::allWindows())
        if (sim::role(window) == sim::WindowRole::statusBar) return window;
    return nil;
}

- (UIView *)statusBar {
    NSArray *views = [[self statusBarWindow] subviews];
    return [views count] ? [views objectAtIndex:0] : nil;
}

- (BOOL)launchApplicationWithIdentifier:(NSString *)identifier suspended:(BOOL)suspended {
    return NO;
}

@end
