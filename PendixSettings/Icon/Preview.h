// What stands above the cards: an application's icon with the mark on it, or the glowing status-bar icon.
#pragma once

#include <UIKit/UIKit.h>

namespace pendix::pane {

// Adds it for what is edited; nothing when no page has said what.
void addPreview(UIView *cell, CGFloat correction);

void colorPreview(UIView *cell, UIColor *color);

// The status-bar icon; nil for the other one.
UIView *glowingPreview(UIView *cell);

} // namespace pendix::pane
