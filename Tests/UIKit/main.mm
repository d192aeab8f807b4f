// Every case runs in a process of its own: windows, clock and class records last as long as the process.
#import <Foundation/Foundation.h>

#include "Runtime/Objc/Blocks.hpp"
#include "Runtime/Objc/Census.hpp"
#include "Runtime/Time/Timers.hpp"
#include "UIKit/Application/ApplicationState.h"

#include <gtest/gtest.h>

int main(int argc, char **argv) {
    sim::installBlocks();
    sim::installTimers();
    sim::installRunLoop();
    sim::installCensus();
    testing::InitGoogleTest(&argc, argv);
    @autoreleasepool {
        return RUN_ALL_TESTS();
    }
}
