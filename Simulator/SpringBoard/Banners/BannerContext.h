// What a banner is about.
#pragma once

#include <SpringBoard/SBApplication.h>

@interface SBUIBannerContext : NSObject {
@public
    void *_bannerContextState;
}
- (instancetype)initWithApplication:(SBApplication *)application message:(NSString *)message;
- (SBApplication *)application; // that it came from; nil for none
- (NSString *)title;
- (NSString *)message;
@end
