// Windows that may show over a locked screen; from 8.0 on.
#include "SpringBoard/Versions.hpp"
#include "UIKit/QuartzCore/LayerState.h"

#include <UIKit/UIWindow.h>

#include <set>

@interface UIWindow (Secure)
- (BOOL)_isSecure;
@end

namespace {

// Windows by the number of their layer, which none has twice.
std::set<uint64_t> &secureWindows() {
    static std::set<uint64_t> numbers;
    return numbers;
}

BOOL classIsSecure(id, SEL) { return NO; }

BOOL isSecure(UIWindow *self, SEL) { return secureWindows().count(sim::state([self layer]).number) > 0; }

void setSecure(UIWindow *self, SEL, BOOL secure) {
    uint64_t number = sim::state([self layer]).number;
    if (secure) {
        secureWindows().insert(number);
    } else {
        secureWindows().erase(number);
    }
}

BOOL shouldCreateContextAsSecure(UIWindow *self, SEL) { return [self _isSecure]; }

const sim::VersionedMethod kMethods[] = {
    {"UIWindow", "+_isSecure", "B@:", sim::implementation(classIsSecure), sim::kFirst8, sim::kNewest},
    {"UIWindow", "_isSecure", "B@:", sim::implementation(isSecure), sim::kFirst8, sim::kNewest},
    {"UIWindow", "_setSecure:", "v@:B", sim::implementation(setSecure), sim::kFirst8, sim::kNewest},
    {"UIWindow", "_shouldCreateContextAsSecure", "B@:", sim::implementation(shouldCreateContextAsSecure),
     sim::kFirst8, sim::kNewest},
};
const bool kRegistered = (sim::registerVersionedMethods(kMethods), true);

} // namespace
