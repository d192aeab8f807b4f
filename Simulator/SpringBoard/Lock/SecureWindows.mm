// Windows that may show while the device is locked; from 8.0 on. Before, all may.
#include "Runtime/Objc/Versions.hpp"
#include "UIKit/Application/ApplicationState.h"

#include <UIKit/UIWindow.h>

@interface UIWindow (Secure)
+ (BOOL)_isSecure;
@end

namespace {

BOOL classIsSecure(id, SEL) { return NO; }

BOOL isSecure(UIWindow *self, SEL) { return sim::isContextSecure(self); }

void setSecure(UIWindow *self, SEL, BOOL secure) { sim::setContextSecure(self, secure); }

// The system's own that belong over the lock screen are. (Inferred: which these are.)
BOOL shouldCreateContextAsSecure(UIWindow *self, SEL) {
    switch (sim::role(self)) {
    case sim::WindowRole::statusBar:
    case sim::WindowRole::lock:
    case sim::WindowRole::alert:
        return YES;
    default:
        return [[self class] _isSecure] || sim::isContextSecure(self);
    }
}

const sim::VersionedMethod kMethods[] = {
    {"UIWindow", "+_isSecure", "B@:", sim::implementation(classIsSecure), sim::kFirst8, sim::kNewest},
    {"UIWindow", "_isSecure", "B@:", sim::implementation(isSecure), sim::kFirst8, sim::kNewest},
    {"UIWindow", "_setSecure:", "v@:B", sim::implementation(setSecure), sim::kFirst8, sim::kNewest},
    {"UIWindow", "_shouldCreateContextAsSecure", "B@:", sim::implementation(shouldCreateContextAsSecure),
     sim::kFirst8, sim::kNewest},
};
const bool kRegistered = (sim::registerVersionedMethods(kMethods), true);

} // namespace
