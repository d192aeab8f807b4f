// Images that the system draws itself, at the screen's scale.
#pragma once

#include "Render/Bitmap.hpp"

#include <UIKit/UIColor.h>
#include <UIKit/UIFont.h>
#include <UIKit/UIImage.h>

#include <string>

namespace sim {

// An SVG drawing fitted into that many points; nil when it cannot be read.
UIImage *drawnImage(const std::string &svg, CGSize size);

// One line of text with clear surroundings, as tall as the font's line; nil for an empty text.
UIImage *textImage(NSString *text, UIFont *font, UIColor *color);

// The image's alpha filled with the colour; nil for a nil image.
UIImage *flatImage(UIImage *image, UIColor *color);

// `#rrggbb`, for use in drawings.
std::string svgColor(UIColor *color);

// The same pixels, as opaque as the mask's alpha lets them be. Both have the same size in pixels.
render::BitmapRef masked(const render::Bitmap &bitmap, const render::Bitmap &mask);

} // namespace sim
