// The simulator's side of UIImage.
#pragma once

#include "UIKit/CoreGraphics/CGObjects.h"

#include <UIKit/UIImage.h>

#include <string>

namespace sim {

struct ImageState {
    SimCGImage *image = nil; // retained
    std::string source;      // the name or path it was asked for by; empty for a drawn one
    UIImageRenderingMode mode = UIImageRenderingModeAutomatic;
    UIEdgeInsets caps = {0, 0, 0, 0};
};

// The image must not be nil.
const ImageState &state(UIImage *image);

// An image of those pixels. `source` is what scripts are told that it came from.
UIImage *makeImage(render::BitmapRef bitmap, std::string source = {});

// The file's pixels, its "@2x" or "@3x" giving the scale; nullptr when it cannot be read.
render::BitmapRef loadBitmap(NSString *path);

} // namespace sim
