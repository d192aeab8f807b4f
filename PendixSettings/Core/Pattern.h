#pragma once

#include <UIKit/UIColor.h>

namespace pendix::pane {

// What the title and the switches are painted with; nil when its picture is missing.
UIColor *pattern();

} // namespace pendix::pane
