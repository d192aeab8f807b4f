// Insets and orientations.
#pragma once

#include <CoreGraphics/CoreGraphics.h>

struct UIEdgeInsets {
    CGFloat top, left, bottom, right;
};
typedef struct UIEdgeInsets UIEdgeInsets;

static inline UIEdgeInsets UIEdgeInsetsMake(CGFloat top, CGFloat left, CGFloat bottom, CGFloat right) {
    return UIEdgeInsets{top, left, bottom, right};
}

// Interface and device orientations share these values; the device's own has two more, face up and face down.
// "Landscape left" and "right" name the side of the home button for the interface.
typedef NSInteger UIInterfaceOrientation;
enum {
    UIInterfaceOrientationUnknown = 0,
    UIInterfaceOrientationPortrait = 1,
    UIInterfaceOrientationPortraitUpsideDown = 2,
    UIInterfaceOrientationLandscapeRight = 3,
    UIInterfaceOrientationLandscapeLeft = 4
};
typedef NSInteger UIDeviceOrientation;
enum {
    UIDeviceOrientationUnknown = 0,
    UIDeviceOrientationPortrait = 1,
    UIDeviceOrientationPortraitUpsideDown = 2,
    UIDeviceOrientationLandscapeLeft = 3,
    UIDeviceOrientationLandscapeRight = 4,
    UIDeviceOrientationFaceUp = 5,
    UIDeviceOrientationFaceDown = 6
};
