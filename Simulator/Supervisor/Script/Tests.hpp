// The named tests of a script and how each of them went.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <filesystem>
#include <string>
#include <vector>

namespace sim {

struct TestResult {
    std::string name;                       // empty: the whole script
    std::vector<std::string> failures = {}; // what each says; none: it passed
    double seconds = 0;                     // of the machine's time
};

Value toValue(const TestResult &result);
// Throws ValueError for what is none.
TestResult testResult(const Value &value);

// "FILE: NAME", or the file alone for a whole script.
std::string testTitle(const std::filesystem::path &file, const std::string &name);
// Whether a filter, a part of titles, leaves the test.
bool isChosen(const std::string &filter, const std::filesystem::path &file, const std::string &name);

} // namespace sim
