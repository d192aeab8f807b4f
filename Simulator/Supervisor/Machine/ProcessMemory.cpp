#include "ProcessMemory.hpp"

#include <algorithm>
#include <atomic>
#include <fstream>
#include <string>

namespace sim {

namespace {

// Devices may live in several threads.
std::atomic<int64_t> most = 0;

} // namespace

void noteMemory(pid_t process) {
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string word; status >> word;) {
        if (word != "VmHWM:") continue;
        int64_t kilobytes = 0;
        if (!(status >> kilobytes)) return;
        int64_t before = most;
        while (before < kilobytes && !most.compare_exchange_weak(before, kilobytes)) {}
        return;
    }
}

int64_t mostMemoryNoted() { return most; }

} // namespace sim
