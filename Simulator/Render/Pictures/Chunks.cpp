#include "Render/Pictures/Chunks.hpp"

#include <zlib.h>

namespace render {

namespace {

uLong sumOn(uLong sum, std::string_view bytes) {
    return crc32(sum, reinterpret_cast<const Bytef *>(bytes.data()), static_cast<uInt>(bytes.size()));
}

} // namespace

std::string bigEndian(uint32_t number, int bytes) {
    std::string result;
    for (int i = bytes; i-- > 0;) result += static_cast<char>(number >> (8 * i));
    return result;
}

std::string chunk(std::string_view type, std::string_view data) {
    std::string result = bigEndian(static_cast<uint32_t>(data.size()));
    result.append(type).append(data);
    return result += bigEndian(static_cast<uint32_t>(sumOn(sumOn(0, type), data)));
}

} // namespace render
