// What the platform has beyond <UIKit/UIBackdropView.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UIBackdropView.h>

@interface _UIBackdropViewSettings (Further)
@property (nonatomic, retain) UIColor *colorTint;
@end

@interface _UIBackdropView (Further)
- (instancetype)initWithSettings:(_UIBackdropViewSettings *)settings;
@end
