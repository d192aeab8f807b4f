#include "Packing.hpp"

#include <algorithm>

namespace sim {

namespace {

constexpr double kSlow = 0.25;  // under way for so long while another waits: the line is too slow
constexpr double kQuick = 0.08; // a frame would be under way for no longer without packing
constexpr double kMostPatience = 64;

} // namespace

void Packing::sent(uint32_t frame, size_t bytes, size_t plain, double now) {
    underWay_.push_back({frame, bytes, plain, now});
}

void Packing::seen(uint32_t frame, double now) {
    while (!underWay_.empty() && underWay_.front().number <= frame) {
        const Frame &drawn = underWay_.front();
        double plainTime = (now - drawn.left) * static_cast<double>(drawn.plain) /
                           static_cast<double>(std::max<size_t>(1, drawn.bytes));
        if (plainTime > kQuick) quickSince_ = now;
        underWay_.pop_front();
    }
    if (packs_ && now - quickSince_ >= patience_) choose(false, now);
}

void Packing::heldUp(double now) {
    if (packs_ || underWay_.empty() || now - underWay_.front().left < kSlow) return;
    // Each time that plain frames were too much, they are tried later.
    patience_ = std::min(kMostPatience, patience_ * 2);
    choose(true, now);
}

void Packing::choose(bool packs, double now) {
    if (decided_) return;
    packs_ = packs;
    quickSince_ = now;
}

} // namespace sim
