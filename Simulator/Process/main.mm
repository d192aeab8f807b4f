// pendix-home: the home-screen process of a simulated device. Started by the supervisor, with the files that
// Descriptors.hpp names.
#import <Foundation/Foundation.h>

#include "Process/Shared/Nursery.hpp"
#include "Process/Shared/ProcessStart.h"
#include "Process/Shared/Session.hpp"
#include "Render/Renderer.hpp"
#include "Runtime/Process/Crash.hpp"
#include "Supervisor/Protocol/Descriptors.hpp"

int main() {
    size_t threads = sim::threadCount();
    sim::startProcess();
    render::prepare();
    sim::installCrashHandler(sim::kCrashDescriptor);
    sim::bearProcesses(threads);
    @autoreleasepool {
        sim::serve();
    }
    return 0;
}
