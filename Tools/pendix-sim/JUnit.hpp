// Test results as other programs read them.
#pragma once

#include "TestProcess.hpp"

#include <string>
#include <vector>

namespace sim {

// The XML of JUnit's reports: a suite for each file, with what its run said when something failed in it.
std::string junitReport(const std::vector<TestedFile> &files);

} // namespace sim
