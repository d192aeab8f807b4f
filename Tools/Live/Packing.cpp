#include "Packing.hpp"

#include <algorithm>

namespace sim {

namespace {

constexpr double kSlow = 0.25;  // a plain frame is under way for so long while another waits: too slow a line
constexpr double kQuick = 0.06; // no packed frame takes longer on a line that may do without
constexpr double kMostPatience = 600;

} // namespace

void Packing::sent(uint32_t frame, double now) { underWay_.push_back({frame, now}); }

void Packing::seen(uint32_t frame, double now) {
    while (!underWay_.empty() && underWay_.front().number <= frame) {
        if (now - underWay_.front().left > kQuick) quickSince_ = now;
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
