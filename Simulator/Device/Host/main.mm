// pendix-home: the home-screen process of a simulated device. Started by the supervisor, with the files that
// Descriptors.hpp names.
#import <Foundation/Foundation.h>

#include "Device/Protocol/Descriptors.hpp"
#include "ProcessStart.h"
#include "Runtime/Process/Crash.hpp"
#include "Session.hpp"

int main() {
    sim::startProcess();
    sim::installCrashHandler(sim::kCrashDescriptor);
    @autoreleasepool {
        sim::serve();
    }
    return 0;
}
