// An answer of the question whether to clear everything; darker while a finger presses it.
#pragma once

#include <UIKit/UIControl.h>

@interface promptButton : UIButton
@end
