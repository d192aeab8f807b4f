// Frosted glass, as the home screen uses it for its own parts.
#pragma once

#include <UIKit/UIView.h>

namespace sim {

// A backdrop view of that style with a fainter tint; a plain view of `plain` on a system without the
// material.
UIView *makeGlass(CGRect frame, NSInteger style, CGFloat tintAlpha, UIColor *plain);

} // namespace sim
