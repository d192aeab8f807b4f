#include "DecodedFiles.hpp"

#include <map>
#include <string>

namespace sim {

namespace {

// All are forgotten when there are more pixels than this, 64 MB.
constexpr size_t kMostPixels = 16 << 20;

struct Decoded {
    std::string bytes;
    render::BitmapRef bitmap;
};

} // namespace

render::BitmapRef decodedPng(std::string_view bytes, double scale) {
    static auto &kept = *new std::map<std::pair<size_t, double>, Decoded>;
    static size_t pixels = 0;
    std::pair key{std::hash<std::string_view>{}(bytes), scale};
    auto found = kept.find(key);
    if (found != kept.end() && found->second.bytes == bytes) return found->second.bitmap;
    auto bitmap = render::decodePng(bytes, scale);
    if (!bitmap) return nullptr;
    pixels += bitmap->pixels.size();
    if (pixels > kMostPixels) {
        kept.clear();
        pixels = bitmap->pixels.size();
    }
    kept.insert_or_assign(key, Decoded{std::string(bytes), bitmap});
    return bitmap;
}

} // namespace sim
