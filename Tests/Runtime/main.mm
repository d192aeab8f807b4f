// Every case runs in a process of its own, set up as a simulated process is.
#import <Foundation/Foundation.h>

#include "Runtime/Files/FoundationFiles.hpp"
#include "Runtime/Objc/Blocks.hpp"
#include "Runtime/Objc/Census.hpp"
#include "Runtime/Objc/Exceptions.hpp"
#include "Runtime/Time/Timers.hpp"

#include <gtest/gtest.h>

int main(int argc, char **argv) {
    sim::installBlocks();
    sim::installTimers();
    sim::installCensus();
    sim::installExceptions();
    sim::installPropertyLists();
    testing::InitGoogleTest(&argc, argv);
    // An exception that nobody catches must end the process, as it does without a test around it.
    GTEST_FLAG_SET(catch_exceptions, false);
    @autoreleasepool {
        return RUN_ALL_TESTS();
    }
}
