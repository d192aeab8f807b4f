// Whether the frames for one page are packed, which takes the page and this program some time and spares a
// slow line nine tenths of the bytes: as it was asked for, or decided by how long frames are under way.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>

namespace sim {

// Times are in seconds, of any one clock.
class Packing {
public:
    // `always`: true or false decides it once and for all.
    explicit Packing(std::optional<bool> always = {}, double now = 0)
        : packs_(always.value_or(true)), decided_(always.has_value()), quickSince_(now) {}

    bool packs() const { return packs_; }
    // A frame has left.
    void sent(uint32_t frame, double now);
    // The page has drawn it, and all before it.
    void seen(uint32_t frame, double now);
    // Another frame waits, for too many are under way.
    void heldUp(double now);

private:
    struct Frame {
        uint32_t number;
        double left;
    };
    void choose(bool packs, double now);

    bool packs_, decided_;
    std::deque<Frame> underWay_;
    double quickSince_;   // since when no packed frame took long
    double patience_ = 2; // how long that must last for plain frames to be tried
};

} // namespace sim
