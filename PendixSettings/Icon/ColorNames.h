// The colours that the user chooses from, and what the choice is for.
#pragma once

#include <UIKit/UIColor.h>

#include <span>

namespace pendix::pane {

// Twelve names, in the order of the cards.
std::span<NSString *const> colorNames();

// The name of a colour object that the platform hands out for one of the twelve names; "red" for any other,
// nil included.
NSString *stringFromColor(UIColor *color);

// The settings key that the colour page edits; nil when no page has said which.
NSString *editedColorKey();

} // namespace pendix::pane
