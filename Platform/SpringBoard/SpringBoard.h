// The home screen's application object. Its class is a UIApplication (7.x) or FBSystemApp (8.x); declared
// here as the former, whose methods both have.
#pragma once

#include <UIKit/UIApplication.h>

@interface SpringBoard : UIApplication
- (void)applicationDidFinishLaunching:(id)application;
- (id)_accessibilityTopDisplay;
- (id)_accessibilityFrontMostApplication;
@end

@interface SBUIController : NSObject {
@public
    void *_uiControllerState;
}
+ (instancetype)sharedInstance;
- (BOOL)clickedMenuButton;
- (BOOL)handleMenuDoubleTap;
@end

@interface SBUserAgent : NSObject
+ (instancetype)sharedUserAgent;
- (BOOL)deviceIsPasscodeLocked;
@end

@interface SBReachabilityManager : NSObject {
@public
    void *_reachabilityState;
}
+ (instancetype)sharedInstance;
+ (BOOL)reachabilitySupported;
@property (nonatomic, readonly) BOOL reachabilityModeActive;
@end

@interface SBBannerController : NSObject {
@public
    void *_bannerState;
}
+ (instancetype)sharedInstance;
- (void)_presentBannerForContext:(id)context reason:(NSInteger)reason;
@end
