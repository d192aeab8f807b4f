// The system versions that the tables of version-dependent methods and classes name.
#pragma once

#include "Availability.hpp"

namespace sim {

constexpr Version kOldest{7, 0}, kLast7{7, 99}, kFirst8{8, 0}, kLast80{8, 0}, kFirst81{8, 1}, kNewest{8, 99};

// An implementation as the tables of methods hold it.
template <typename Function>
IMP implementation(Function *function) {
    return reinterpret_cast<IMP>(function);
}

} // namespace sim
