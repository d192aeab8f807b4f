// Pictures on their way from a simulated process to the supervisor: raw pixels in a file that both have open.
#pragma once

#include "Render/Bitmap.hpp"

namespace sim {

// Replaces the picture in the file. Throws std::system_error.
void writePicture(int descriptor, const render::Bitmap &picture);
// Throws std::system_error; std::runtime_error when no picture has been written.
render::Bitmap readPicture(int descriptor);

} // namespace sim
