// The pictures of a trace, each once, and most of them as what differs from another.
#pragma once

#include "Render/Bitmap.hpp"
#include "Runtime/Values/Value.hpp"

#include <cstddef>
#include <map>
#include <tuple>
#include <vector>

namespace sim {

class TracePictures {
public:
    // Its place in the list. After some megabytes pictures are of half the scale.
    size_t add(render::Bitmap picture);

    // {width, height, scale, png}, or {on, x, y, png}: the picture at place `on`, with another one laid on
    // it. `png` is in base64.
    const Array &list() const { return list_; }

private:
    struct Whole {
        size_t place;
        render::Bitmap picture;
        size_t bytes;
    };
    size_t addWhole(const render::Bitmap &picture);
    bool addPart(const render::Bitmap &picture);
    void append(Object entry, const std::string &png);

    Array list_;
    std::vector<Whole> wholes_; // the last ones
    std::map<std::tuple<uint64_t, int, int>, size_t> known_;
    size_t bytes_ = 0;
};

} // namespace sim
