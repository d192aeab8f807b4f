// A line of a script, as what a person does to the phone one thing after the other.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace sim {

struct Deed {
    enum class Kind {
        tap,    // one quick touch that keeps still
        touch,  // any other whole touch: held, dragged, flung
        down,   // a finger goes down, moves or lifts
        move,   //
        up,     //
        sensor, // a finger on the sensor
        wait,
        other, // what else there is: buttons, settings, the Settings application
    };
    Kind kind = Kind::other;
    double x = 0, y = 0;  // where a finger touches first; no number when the line does not say
    int64_t number = 1;   // which finger, or what the sensor says: 3, a match, where the line has no number
    int64_t duration = 0; // virtual nanoseconds, as far as the line says
};

// In their order.
std::vector<Deed> deedsOf(std::string_view line);

} // namespace sim
