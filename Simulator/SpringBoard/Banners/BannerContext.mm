#include "BannerContext.h"

#include "Runtime/Objc/LazyState.hpp"

namespace {

struct ContextState {
    SBApplication *application = nil; // lives as long as the process
    NSString *message = nil;          // retained
};

ContextState &state(SBUIBannerContext *context) {
    return sim::lazyState<ContextState>(context->_bannerContextState);
}

} // namespace

@implementation SBUIBannerContext

- (instancetype)initWithApplication:(SBApplication *)application message:(NSString *)message {
    if ((self = [super init])) state(self) = {application, [message copy]};
    return self;
}

- (void)dealloc {
    [state(self).message release];
    delete &state(self);
    [super dealloc];
}

- (SBApplication *)application {
    return state(self).application;
}
- (NSString *)title {
    return [state(self).application displayName];
}
- (NSString *)message {
    return state(self).message;
}

@end
