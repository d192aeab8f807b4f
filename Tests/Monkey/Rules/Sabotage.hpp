// A scene that is played on a device with the saboteur in it, and what the rules say to it.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sabotage {

using Script = std::vector<std::string>;

struct Scene {
    Script script;
    sim::Object settings;
    double at;             // when the saboteur acts, seconds
    sim::Object boot = {}; // more of the table that the device is booted with
};

// One line for each finding, with the line of the script before it. Without an act the saboteur does nothing.
Script findings(const Scene &scene, const char *act);

std::string textOf(const Script &lines);

struct Case {
    const char *sabotage; // nullptr: the scene is broken without the saboteur
    const char *rule;
    const Scene &(*scene)();
};

void PrintTo(const Case &broken, std::ostream *out);
std::string caseName(const testing::TestParamInfo<Case> &info);
// Fails unless that very rule fires.
void expectFound(const Case &broken);

} // namespace sabotage
