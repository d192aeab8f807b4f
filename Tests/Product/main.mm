// The product's units linked into a simulated home screen, without the constructor: a case installs what it
// needs.
#import <Foundation/Foundation.h>

#include "SpringBoard/Harness.h"

#include <gtest/gtest.h>

int main(int argc, char **argv) {
    harness::preparePlatform();
    testing::InitGoogleTest(&argc, argv);
    @autoreleasepool {
        return RUN_ALL_TESTS();
    }
}
