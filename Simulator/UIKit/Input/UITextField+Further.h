// What the platform has beyond <UIKit/UITextField.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UITextField.h>

@interface UITextField (Further)
@property (nonatomic, getter=isSecureTextEntry) BOOL secureTextEntry;
@end
