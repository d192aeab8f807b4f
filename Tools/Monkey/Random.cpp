#include "Random.hpp"

namespace sim {

namespace {

constexpr uint64_t kGolden = 0x9e3779b97f4a7c15; // 2^64 divided by the golden ratio

uint64_t mixed(uint64_t bits) {
    bits = (bits ^ (bits >> 30)) * 0xbf58476d1ce4e5b9;
    bits = (bits ^ (bits >> 27)) * 0x94d049bb133111eb;
    return bits ^ (bits >> 31);
}

} // namespace

uint64_t Random::next() { return mixed(state_ += kGolden); }

// The high half of a product is even enough for ends as small as these.
uint64_t Random::below(uint64_t end) {
    return static_cast<uint64_t>((static_cast<unsigned __int128>(next()) * end) >> 64);
}

int64_t Random::between(int64_t first, int64_t last) {
    return first + static_cast<int64_t>(below(static_cast<uint64_t>(last - first) + 1));
}

uint64_t partSeed(uint64_t seed, uint64_t part) { return mixed(mixed(seed + kGolden) + part * kGolden); }

} // namespace sim
