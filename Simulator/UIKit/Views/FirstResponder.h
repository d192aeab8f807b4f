// Who gets what is typed.
#pragma once

#include <UIKit/UIResponder.h>

namespace sim {

// nil when nobody does.
UIResponder *firstResponder();

} // namespace sim
