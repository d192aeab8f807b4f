// The pieces that a PNG file is made of.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace render {

constexpr std::string_view kPngSignature = "\x89PNG\r\n\x1a\n";

// Lengths, sums and sizes as they stand in the file: `bytes` of them, the highest first.
std::string bigEndian(uint32_t number, int bytes = 4);
// Length, type of four letters, data, checksum.
std::string chunk(std::string_view type, std::string_view data);

} // namespace render
