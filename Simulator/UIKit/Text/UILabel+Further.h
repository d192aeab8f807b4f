// What the platform has beyond <UIKit/UILabel.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UILabel.h>

@interface UILabel (Further)
@property (nonatomic) BOOL adjustsFontSizeToFitWidth;
@end
