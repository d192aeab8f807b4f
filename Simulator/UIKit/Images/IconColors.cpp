#include "IconColors.hpp"

#include <cstdint>
#include <iterator>

namespace sim {

namespace {

constexpr render::Rgba rgb(uint32_t hex) {
    return {(hex >> 16 & 0xff) / 255.0, (hex >> 8 & 0xff) / 255.0, (hex & 0xff) / 255.0, 1};
}

constexpr IconColors kPalette[] = {
    {rgb(0x5ac8fa), rgb(0x1d77ef)}, {rgb(0x87e36d), rgb(0x2fb344)}, {rgb(0xff9b6a), rgb(0xf0503c)},
    {rgb(0xc78bf2), rgb(0x7d4bd6)}, {rgb(0xffd75e), rgb(0xf7a325)}, {rgb(0x63e0c8), rgb(0x1b9e9a)},
    {rgb(0xff8fb4), rgb(0xe23b74)}, {rgb(0x8fa3bd), rgb(0x4b5f7d)}, {rgb(0x7f9cf5), rgb(0x3f51c8)},
};

// FNV-1a: stable, so that an application keeps its colours from run to run.
uint64_t hash(std::string_view text) {
    uint64_t value = 14695981039346656037u;
    for (unsigned char byte : text) value = (value ^ byte) * 1099511628211u;
    return value;
}

} // namespace

const IconColors &iconColors(std::string_view identifier) {
    // The low bits alone follow the last letter too closely.
    uint64_t value = hash(identifier);
    return kPalette[(value ^ value >> 32) % std::size(kPalette)];
}

} // namespace sim
