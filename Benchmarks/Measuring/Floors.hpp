// The least that a piece of work could cost on this machine.
#pragma once

#include "Render/Geometry.hpp"

#include <filesystem>
#include <vector>

namespace bench {

// Seconds to open the file, read it whole and close it, by the kernel's calls alone.
double bareReadSeconds(const std::filesystem::path &file);

// Seconds in which cairo paints these parts of a bitmap of that size once, from another bitmap.
double barePaintSeconds(int width, int height, const std::vector<render::PixelRect> &parts);

} // namespace bench
