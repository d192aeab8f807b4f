#include "Runtime/Process/Device.hpp"
#include "SpringBoard/Versions.hpp"

#include <SpringBoard/SpringBoard.h>

namespace {

const sim::ClassVersions kClasses[] = {{"SBReachabilityManager", sim::kFirst8, sim::kNewest}};
const bool kRegistered = (sim::registerClassVersions(kClasses), true);

} // namespace

@implementation SBReachabilityManager

+ (instancetype)sharedInstance {
    static SBReachabilityManager *manager = [self new];
    return manager;
}

+ (BOOL)reachabilitySupported {
    return sim::device().reachability;
}

// Nothing turns it on yet.
- (BOOL)reachabilityModeActive {
    return NO;
}

@end
