// Runs test files, several at a time.
#pragma once

#include "TestFiles.hpp"
#include "TestProcess.hpp"

#include <functional>

namespace sim {

// Runs the files with at most so many processes at once, and gives each to `done` in the order of the list,
// as soon as it and those before it have ended. `options` holds what is common to all. After an interrupt
// those that run are ended and no other is started.
void runTestFiles(const DeviceSetup &setup, const std::vector<TestFile> &files, const ScriptOptions &options,
                  size_t jobs, const std::function<void(TestedFile)> &done);

} // namespace sim
