// The panel's two appearances: black ink on light material, or white ink on dark.
#pragma once

#include <UIKit/UIColor.h>

namespace pendix {

struct Scheme {
    BOOL light;
    UIColor *ink;   // text, marks, borders
    UIColor *paper; // the other one
};

// By the setting `light`, read afresh.
Scheme currentScheme();

// Applications side by side in the panel: the setting `amount`; four on an iPad and three elsewhere without
// it, or when it is no positive number.
int numberOfRows();

} // namespace pendix
