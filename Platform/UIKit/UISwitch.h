// The on and off switch.
#pragma once

#include <UIKit/UIControl.h>

// Always 51 by 31 points. A tap or a swipe turns it and sends the value-changed event; `setOn:` sends
// nothing.
@interface UISwitch : UIControl {
@public
    void *_switchState;
}
@property (nonatomic, getter=isOn) BOOL on;
// The track while on; nil is the system's green. May be a pattern.
@property (nonatomic, retain) UIColor *onTintColor;
@end
