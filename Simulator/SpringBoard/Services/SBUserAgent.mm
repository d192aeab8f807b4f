#include "SBUserAgent+Further.h"
#include "SpringBoard/Applications/ApplicationLife.h"
#include "SpringBoard/Applications/Applications.h"
#include "SpringBoard/Lock/LockState.h"

#include <SpringBoard/SpringBoard.h>

@implementation SBUserAgent

+ (instancetype)sharedUserAgent {
    static SBUserAgent *agent = [self new];
    return agent;
}

- (BOOL)deviceIsLocked {
    return sim::lockState().screenLocked;
}

- (BOOL)deviceIsPasscodeLocked {
    return sim::lockState().passcodeLocked;
}

- (id)foregroundApplicationDisplayID {
    return sim::identifierOf(sim::frontApplication());
}

- (void)setBadgeNumberOrString:(id)badge forApplicationWithID:(NSString *)identifier {
    [sim::findApplication(identifier) setBadge:badge];
}

@end
