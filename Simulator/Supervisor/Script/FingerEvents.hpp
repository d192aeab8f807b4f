// The events of the fingerprint sensor that have a name.
#pragma once

#include "Supervisor/Reference/About.hpp"

#include <cstdint>
#include <span>

namespace sim {

struct FingerEvent {
    const char *name;
    int64_t number; // what observers are told
    About about;
};

std::span<const FingerEvent> fingerEvents();

} // namespace sim
