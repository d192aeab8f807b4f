// The names of applications on the panel, in the size that the user has chosen.
#pragma once

#include <UIKit/UIKit.h>

namespace pendix {

struct NameType {
    UIFont *font;
    NSInteger lines; // two in the sizes for those who see badly
    CGFloat height;  // of the lines
    CGFloat more;    // by which the strip must be higher for them
};

// As chosen now. In the usual size HelveticaNeue of 12 points on one line of 15.
NameType currentNameType();

// Lays the name out below an icon that ends at `y`, in an item of that width whose neighbour begins `step`
// points after it.
void placeName(UILabel *name, const NameType &type, CGFloat y, CGFloat width, CGFloat step);

} // namespace pendix
