// What views are told by, as fields of a row.
#pragma once

#include "Supervisor/Protocol/Changes.hpp"

#include <UIKit/UIKit.h>

namespace sim {

// x, y, width, height, rounded; numbers that are none stay so.
void putRect(RowWriter &row, CGRect rect);
// Empty for nil.
void putText(RowWriter &row, NSString *text);
// Empty for what is no text.
void putText(RowWriter &row, const Value &text);

} // namespace sim
