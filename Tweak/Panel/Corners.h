// Corners that round or square while something else goes on.
#pragma once

#include <UIKit/UIView.h>

namespace pendix {

constexpr CGFloat kPanelRadius = 10;

// Linear, over `seconds`, whatever `fast` says; the layer has the new radius at once, and where motion is
// reduced it shows at once, too. Outside of animation blocks, which have a pace of their own.
void turnCorners(UIView *view, CGFloat from, CGFloat to, CFTimeInterval seconds);

} // namespace pendix
