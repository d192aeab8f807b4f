#include <SpringBoard/SpringBoard.h>

@implementation SBBannerController

+ (instancetype)sharedInstance {
    static SBBannerController *controller = [self new];
    return controller;
}

// Banners are not drawn yet; who wants to know of one hears of it here.
- (void)_presentBannerForContext:(id)context reason:(NSInteger)reason {
}

@end
