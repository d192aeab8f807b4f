// One thing to measure.
#pragma once

#include "Device.hpp"

#include <functional>
#include <vector>

namespace bench {

using Step = std::function<void(Device &)>;

struct Case {
    std::string name; // "opening/200": what, and after the slash the size N
    sim::Value options;
    Step setUp;    // once, after the launch
    Step prepare;  // before each round
    Step work;     // what is measured
    Step restore;  // after each round: the device is as it was before `prepare`
    int units = 1; // how many of what the name says `work` does
    // The launch itself is measured; a process has only one. No steps then.
    bool launch = false;
};

// Those of this program's kind of process.
std::vector<Case> allCases();

} // namespace bench
