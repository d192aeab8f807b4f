// What there is on the screen to be spoken.
#pragma once

#import <Foundation/Foundation.h>

#include <vector>

@class UIView;

namespace sim {

// Every element that is shown, in the order in which it is visited: in each window from the top to the bottom
// and from left to right, what belongs together in one go; containers that list their elements in their own
// order. While a modal view is shown only what it holds.
std::vector<id> accessibleElements();

// The first of them: of what lies below the status bar, where anything does. nil without any.
id firstElement(const std::vector<id> &elements);

// The element itself, or the view that holds it; nil when none does.
UIView *viewOfElement(id element);

// Tells an element from all others that live. Responders, bar items and accessibility elements lose theirs
// when they go.
int64_t elementNumber(id element);
void forgetNumber(id element);

} // namespace sim
