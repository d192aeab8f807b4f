// Chance that a seed decides alone: the same numbers on every machine and with every library.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <vector>

namespace sim {

class Random {
public:
    explicit Random(uint64_t seed) : state_(seed) {}

    // Any 64 bits.
    uint64_t next();
    // 0 up to, but without, `end`, which must not be 0.
    uint64_t below(uint64_t end);
    // Both ends included.
    int64_t between(int64_t first, int64_t last);
    bool percent(unsigned chance) { return below(100) < chance; }

    // One of a list that is not empty.
    template <typename T>
    const T &pick(const std::vector<T> &list) {
        return list[below(list.size())];
    }
    template <typename T>
    T pick(std::initializer_list<T> list) {
        return list.begin()[below(list.size())];
    }

private:
    uint64_t state_;
};

// A seed for the part of that number of what `seed` decides; parts have nothing in common.
uint64_t partSeed(uint64_t seed, uint64_t part);

} // namespace sim
