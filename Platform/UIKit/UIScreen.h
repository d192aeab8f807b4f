// The device's screen.
#pragma once

#include <UIKit/UIGeometry.h>

@interface UIScreen : NSObject {
@public
    void *_screenState;
}
+ (UIScreen *)mainScreen;
// In points. Fixed in portrait before 8.0; turns with the interface from 8.0 on.
@property (nonatomic, readonly) CGRect bounds;
@property (nonatomic, readonly) CGFloat scale;
@end
