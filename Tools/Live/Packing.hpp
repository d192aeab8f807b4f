// Whether the frames for one page are packed, which takes the page and this program some time and spares a
// slow line nine tenths of the bytes: as it was asked for, or decided by how long frames are under way.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>

namespace sim {

// Times are in seconds, of any one clock.
class Packing {
public:
    // `always`: true or false decides it once and for all.
    explicit Packing(std::optional<bool> always = {})
        : packs_(always.value_or(true)), decided_(always.has_value()) {}

    bool packs() const { return packs_; }
    // A frame has left, of so many bytes, and so many without packing.
    void sent(uint32_t frame, size_t bytes, size_t plain, double now);
    // The page has drawn it, and all before it.
    void seen(uint32_t frame, double now);
    // Another frame waits, for too many are under way.
    void heldUp(double now);

private:
    struct Frame {
        uint32_t number;
        size_t bytes, plain;
        double left;
    };
    void choose(bool packs, double now);

    bool packs_, decided_;
    std::deque<Frame> underWay_;
    double quickSince_ = 0; // since when the line would do without packing
    double patience_ = 1;   // how long it must have
};

} // namespace sim
