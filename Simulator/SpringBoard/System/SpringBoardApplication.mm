#include "SpringBoard/Applications/ApplicationLife.h"
#include "SpringBoard/Applications/Applications.h"
#include "SpringBoard/Home/HomeViews.h"
#include "SpringBoard/Lock/LockState.h"
#include "SpringBoard/System/Interface.h"
#include "UIKit/StatusBar/StatusBarState.h"

#include <BiometricKit/BiometricKit.h>
#include <SpringBoard/SBLockScreen.h>
#include <SpringBoard/SpringBoard.h>

#include <objc/runtime.h>

@implementation SpringBoard

- (void)applicationDidFinishLaunching:(id)application {
    sim::showHomeWindow();
    sim::showStatusBar();
    sim::followDevice();
    if (sim::lockState().passcodeLocked) sim::startLocked();
    // Which makes itself known to the sensor.
    [objc_getClass("SBUIBiometricEventMonitor") sharedInstance];
}

// The application in front; what else has the screen is no application. (Inferred: which object that is.)
- (id)_accessibilityTopDisplay {
    if (sim::lockState().screenLocked) return [[SBLockScreenManager sharedInstance] lockScreenViewController];
    SBApplication *front = sim::frontApplication();
    return front ? static_cast<id>(front) : [SBUIController sharedInstance];
}

- (id)_accessibilityFrontMostApplication {
    return sim::lockState().screenLocked ? nil : sim::frontApplication();
}

- (BOOL)launchApplicationWithIdentifier:(NSString *)identifier suspended:(BOOL)suspended {
    SBApplication *application = sim::findApplication(identifier);
    if (!application) return NO;
    sim::launch(application, suspended);
    return YES;
}

- (void)handleMenuDoubleTap {
    [[SBUIController sharedInstance] handleMenuDoubleTap];
}

@end
