// The device: its model, its system and how it is held.
#pragma once

#include <UIKit/UIGeometry.h>

extern "C" {
// Posted by the device object, whose `orientation` is then the new one.
extern NSString *const UIDeviceOrientationDidChangeNotification;
}

typedef NSInteger UIUserInterfaceIdiom;
enum { UIUserInterfaceIdiomPhone = 0, UIUserInterfaceIdiomPad = 1 };

@interface UIDevice : NSObject {
@public
    void *_deviceState;
}
+ (UIDevice *)currentDevice;
@property (nonatomic, readonly, copy) NSString *model; // "iPhone", "iPad"
@property (nonatomic, readonly, copy) NSString *systemVersion;
@property (nonatomic, readonly) UIDeviceOrientation orientation;
@property (nonatomic, readonly) UIUserInterfaceIdiom userInterfaceIdiom;
- (void)beginGeneratingDeviceOrientationNotifications;
@end
