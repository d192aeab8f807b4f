#include "FolderOverlay.h"
#include "HomeViews.h"
#include "SpringBoard/Applications/ApplicationLife.h"

#include <SpringBoard/SpringBoard.h>

@implementation SBUIController

+ (instancetype)sharedInstance {
    static SBUIController *controller = [self new];
    return controller;
}

- (UIWindow *)window {
    return sim::homeWindow();
}

// One press of the home button: out of the application, out of the folder, or back to the first page.
- (BOOL)clickedMenuButton {
    if (sim::frontApplication()) {
        sim::returnToHomeScreen();
        return YES;
    }
    return sim::closeFolder(true) || sim::scrollToFirstPage();
}

// The switcher's own screen is not simulated; the press is taken all the same.
- (BOOL)handleMenuDoubleTap {
    return YES;
}

@end
