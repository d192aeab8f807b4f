// pendix-home: the home-screen process of a simulated device. Started by the supervisor, with the files that
// Descriptors.hpp names.
#import <Foundation/Foundation.h>

#include "Device/Protocol/Descriptors.hpp"
#include "Runtime/Objc/Blocks.hpp"
#include "Runtime/Objc/Census.hpp"
#include "Runtime/Objc/Exceptions.hpp"
#include "Runtime/Process/Crash.hpp"
#include "Runtime/Process/Singletons.hpp"
#include "Session.hpp"

int main() {
    sim::installBlocks();
    sim::installCensus();
    sim::makeFoundationSingletons();
    sim::installExceptions();
    sim::installCrashHandler(sim::kCrashDescriptor);
    @autoreleasepool {
        sim::serve();
    }
    return 0;
}
