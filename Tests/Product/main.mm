// The product's units linked into a simulated home screen, without the constructor: a case installs what it
// needs.
#import <Foundation/Foundation.h>

#include "Runtime/Files/FoundationFiles.hpp"
#include "Runtime/Objc/Blocks.hpp"
#include "Runtime/Process/Singletons.hpp"
#include "Runtime/Time/Timers.hpp"
#include "UIKit/Application/ApplicationState.h"

#include <gtest/gtest.h>

int main(int argc, char **argv) {
    sim::installBlocks();
    sim::makeFoundationSingletons();
    sim::installTimers();
    sim::installPropertyLists();
    sim::installRunLoop();
    testing::InitGoogleTest(&argc, argv);
    @autoreleasepool {
        return RUN_ALL_TESTS();
    }
}
