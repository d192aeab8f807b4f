// Pictures that were decoded, kept for the next time that the same file is read. A phone decodes a picture
// when it is drawn, and once; here loading decodes.
#pragma once

#include "Render/Bitmap.hpp"

#include <string_view>

namespace sim {

// As decodePng gives it, for the file's bytes; the same picture as before for the same bytes and scale.
// nullptr for bytes that are no picture.
render::BitmapRef decodedPng(std::string_view bytes, double scale);

} // namespace sim
