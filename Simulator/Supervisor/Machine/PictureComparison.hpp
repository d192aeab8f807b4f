// Whether a picture is as it was agreed.
#pragma once

#include "Render/Bitmap.hpp"

#include <cstddef>

namespace sim {

struct PictureDifference {
    size_t pixels = 0;  // that differ
    int largest = 0;    // of all channels of all pixels, 0 to 255
    render::Bitmap map; // the picture in faint grey, what differs in magenta
};

// A pixel differs when one of its channels does by more than `tolerance`. Both are of one size.
PictureDifference comparePictures(const render::Bitmap &reference, const render::Bitmap &picture,
                                  int tolerance);

// The bytes of an animated picture that shows one and the other in turn; they may differ in size.
std::string blinkPicture(const render::Bitmap &reference, const render::Bitmap &picture);

} // namespace sim
