#include "Runtime/Objc/Versions.hpp"
#include "Runtime/Process/Device.hpp"
#include "SpringBoard/System/Interface.h"

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

- (BOOL)reachabilityModeActive {
    return sim::reachabilityIsOn();
}

@end
