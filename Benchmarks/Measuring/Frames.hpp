// Drawing the device's screen as its display would.
#pragma once

#include "Render/Geometry.hpp"

#include <vector>

namespace bench {

// Draws the screen of this moment. The first time, all of it.
void drawScreen();

// The virtual seconds until the next frame of the display.
double secondsToNextFrame();

// What was painted since the last call, on a screen of how many pixels.
struct Painted {
    int width = 0, height = 0;
    std::vector<render::PixelRect> parts;
    double pixels() const;
};
Painted takePainted();

} // namespace bench
