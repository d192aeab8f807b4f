// loader_trial FILE FOLDER COUNT: lets the loader take so many broken copies of a device's library, each in a
// process of its own. Each must be refused with a reason or be loaded; prints how many were, and every one
// that was neither. FOLDER takes the copies.
#import <Foundation/Foundation.h>

#include "MutatedFiles.hpp"

#include "Process/Shared/ProcessStart.h"
#include "Runtime/MachO/DeviceLibrary.hpp"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int kLoaded = 0, kRefused = 1, kNoReason = 2;
constexpr rlim_t kMostSeconds = 20; // of a processor for one file, lest a circle is followed for ever

int load(const std::string &path) {
    try {
        sim::loadDeviceLibrary(path);
        return kLoaded;
    } catch (const std::runtime_error &error) {
        return *error.what() ? kRefused : kNoReason;
    }
}

int statusOf(const std::string &path) {
    pid_t child = fork();
    if (child == 0) {
        const rlimit most = {kMostSeconds, kMostSeconds};
        setrlimit(RLIMIT_CPU, &most);
        _exit(load(path));
    }
    int status = 0;
    waitpid(child, &status, 0);
    return status;
}

} // namespace

int main(int, char **arguments) {
    sim::startProcess();
    @autoreleasepool {
        auto whole = fileOf(arguments[1]);
        std::string path = std::string(arguments[2]) + "/broken.dylib";
        unsigned loaded = 0, refused = 0, count = static_cast<unsigned>(atoi(arguments[3]));
        for (unsigned number = 0; number < count; ++number) {
            auto bytes = mutated(whole, number);
            std::ofstream(path, std::ios::binary)
                .write(reinterpret_cast<const char *>(bytes.data()),
                       static_cast<std::streamsize>(bytes.size()));
            int status = statusOf(path);
            loaded += WIFEXITED(status) && WEXITSTATUS(status) == kLoaded;
            refused += WIFEXITED(status) && WEXITSTATUS(status) == kRefused;
            if (WIFSIGNALED(status)) printf("file %u: signal %d\n", number, WTERMSIG(status));
            if (WIFEXITED(status) && WEXITSTATUS(status) >= kNoReason) printf("file %u: no reason\n", number);
        }
        printf("%u loaded, %u refused of %u\n", loaded, refused, count);
        return loaded + refused == count ? 0 : 1;
    }
}
