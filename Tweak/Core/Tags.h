// Tags of the overlay window's views. Views are found again by these and never kept in variables.
#pragma once

#import <Foundation/Foundation.h>

namespace pendix::tags {

// Made at launch, for the life of the process.
constexpr NSInteger screenBackdrop = 21; // the whole screen's blur
constexpr NSInteger dismissView = -1;    // clear; a tap on it closes the panel

// The panel's own, direct subviews of the window.
constexpr NSInteger logo = 1;   // copy of the status-bar glyph
constexpr NSInteger bubble = 2; // blurred disc behind the item
constexpr NSInteger panel = 3;  // the panel's backdrop

} // namespace pendix::tags
