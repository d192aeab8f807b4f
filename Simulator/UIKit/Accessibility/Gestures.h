// What a person does with the reader, as the protocol passes it on; the reader need not be on.
#pragma once

#include <UIKit/UIAccessibility.h>

#include <optional>

namespace sim {

// Scrolls so far that the element is seen as a whole, where it lies on a page that moves freely: whoever gets
// the focus is shown.
void reveal(id element);

// A double tap. Nothing when the element took it itself; else where on the screen held in portrait a finger
// is to tap.
std::optional<CGPoint> activate(id element);

// The names of what else can be done with it; empty before 8.0.
NSArray *actionNames(id element);
// Whether the action of that name was done.
bool perform(id element, NSString *name);

// The scrub of two fingers: from the focus, or the first element, up to whoever takes it. False: nobody did.
bool escape();

// Three fingers that go that way, likewise; without anybody there the rest of the screen is asked.
bool scrollPage(UIAccessibilityScrollDirection direction);

} // namespace sim
