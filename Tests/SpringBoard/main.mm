// Every case runs in a process of its own: a home screen can be booted once.
#import <Foundation/Foundation.h>

#include "Runtime/Objc/Blocks.hpp"
#include "Runtime/Time/Timers.hpp"
#include "UIKit/Application/ApplicationState.h"

#include <gtest/gtest.h>

int main(int argc, char **argv) {
    sim::installBlocks();
    sim::installTimers();
    sim::installRunLoop();
    testing::InitGoogleTest(&argc, argv);
    @autoreleasepool {
        return RUN_ALL_TESTS();
    }
}
