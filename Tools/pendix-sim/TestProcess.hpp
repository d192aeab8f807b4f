// The tests of one script in a process of its own, which may crash or be interrupted by itself.
#pragma once

#include "Supervisor/Script/Script.hpp"

#include <cstdio>
#include <memory>
#include <string>
#include <sys/types.h>
#include <vector>

namespace sim {

struct TestedFile {
    std::filesystem::path script;
    std::vector<TestResult> tests;
    std::string said;  // on its standard output and error
    std::string trace; // JSON, when one was asked for and its process came to its end
    Outcome outcome = Outcome::passed;
};

class TestProcess {
public:
    // Starts it. To be called while the program has one thread. Throws std::system_error.
    TestProcess(const DeviceSetup &setup, const ScriptOptions &options);

    pid_t process() const { return process_; }
    // After it has ended; `status` is that of waitpid().
    TestedFile result(int status) const;

private:
    using File = std::unique_ptr<FILE, int (*)(FILE *)>;
    static File temporary();

    std::filesystem::path script_;
    File said_, told_, trace_;
    pid_t process_;
};

} // namespace sim
