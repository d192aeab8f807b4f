// Calls of methods that are known by name only.
#pragma once

#include "Runtime/Values/Value.hpp"

#import <Foundation/Foundation.h>

#include <string>

namespace sim {

// Sends `selector` to the object with no argument (null) or one, a number or text turned into what the method
// takes. The result is a boolean, a number or text; null for nothing. Throws BadRequest when the object lacks
// the method, or when the method takes or gives something else.
Value callMethod(id object, const std::string &selector, const Value &argument);
// The same with an object as the argument.
Value callMethod(id object, const std::string &selector, id argument);

} // namespace sim
