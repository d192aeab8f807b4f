// A round key of the passcode pad.
#pragma once

#include <UIKit/UIKit.h>

@interface SBPasscodeNumberPadButton : UIControl {
@public
    int _digit;
}
@end
