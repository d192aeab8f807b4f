// A row of choices, one of them selected.
#pragma once

#include <UIKit/UIControl.h>

enum { UISegmentedControlNoSegment = -1 };

// 29 points high. A tap on another segment selects it and sends the value-changed event.
@interface UISegmentedControl : UIControl {
@public
    void *_segmentedControlState;
}
@end
