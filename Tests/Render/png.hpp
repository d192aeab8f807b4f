// PNG files made by hand, so that reading is checked against the format and not against our own writing.
#pragma once

#include <cstdint>
#include <string>

namespace render {

enum class PngColor { gray = 0, rgb = 2, palette = 3, grayAlpha = 4, rgba = 6 };

// `rows` are the bytes of all lines without their filter bytes; `palette` and `transparency` the contents of
// PLTE and tRNS, absent when empty.
std::string handmadePng(int width, int height, int depth, PngColor color, const std::string &rows,
                        const std::string &palette = "", const std::string &transparency = "");

} // namespace render
