#import <Foundation/Foundation.h>

#include "Runtime/Objc/Blocks.hpp"
#include "Runtime/Objc/Census.hpp"
#include "Runtime/Process/Device.hpp"
#include "Runtime/Time/Timers.hpp"
#include "UIKit/Application/ApplicationState.h"

#include <UIKit/UIApplication.h>

#include <gtest/gtest.h>

int main(int argc, char **argv) {
    sim::installBlocks();
    sim::installTimers();
    sim::installRunLoop();
    sim::installCensus();
    testing::InitGoogleTest(&argc, argv);
    @autoreleasepool {
        sim::setSharedApplication([UIApplication new]);
        return RUN_ALL_TESTS();
    }
}
