// What is kept beside objects goes with them.
#pragma once

#import <Foundation/Foundation.h>

namespace sim {

// For responders, bar items and accessibility elements, when they go.
void forgetAccessibility(id object);

} // namespace sim
