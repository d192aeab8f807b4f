#import <Foundation/Foundation.h>

#include "Singletons.hpp"

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#include <sanitizer/lsan_interface.h>
#define UNCOUNTED __lsan::ScopedDisabler uncounted
#endif
#endif
#ifndef UNCOUNTED
#define UNCOUNTED
#endif

namespace sim {

void makeFoundationSingletons() {
    UNCOUNTED;
    @autoreleasepool {
        [NSUserDefaults standardUserDefaults];
    }
}

} // namespace sim
