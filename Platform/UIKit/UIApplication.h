// The application object of a process.
#pragma once

#include <UIKit/UIResponder.h>
#include <UIKit/UIWindow.h>

// The main run loop's mode while a scroll view follows a finger.
extern NSString *const UITrackingRunLoopMode;

@interface UIApplication : UIResponder {
@public
    void *_applicationState;
}
+ (UIApplication *)sharedApplication;
@property (nonatomic, readonly) UIWindow *keyWindow;
@property (nonatomic, readonly, copy) NSArray *windows;
@property (nonatomic, readonly) UIInterfaceOrientation statusBarOrientation;
@property (nonatomic, readonly, getter=isStatusBarHidden) BOOL statusBarHidden;
@property (nonatomic, readonly) CGRect statusBarFrame;
- (void)cancelAllLocalNotifications;
@end

@interface UIApplication (Private)
// The window that holds the status bar; nil in an application without one.
- (UIWindow *)statusBarWindow;
- (UIView *)statusBar;
// NO when there is no such application.
- (BOOL)launchApplicationWithIdentifier:(NSString *)identifier suspended:(BOOL)suspended;
@end
