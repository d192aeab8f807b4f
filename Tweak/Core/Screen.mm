#include "Tweak/Core/Screen.h"

#include <SpringBoard/SBApplication.h>

#include <algorithm>

namespace pendix {

CGRect portraitScreenBounds() {
    CGSize size = [UIScreen mainScreen].bounds.size;
    return CGRectMake(0, 0, std::min(size.width, size.height), std::max(size.width, size.height));
}

float systemVersion() {
    constexpr float kSeven = 7, kEight = 8;
    static float told = 0; // the system that this process runs on stays what it is
    if (told <= 0) told = [[UIDevice currentDevice].systemVersion floatValue];
    if (told > 0) return told;
    Class controller = objc_getClass("SBApplicationController");
    return [controller instancesRespondToSelector:@selector(applicationWithBundleIdentifier:)] ? kEight
                                                                                               : kSeven;
}

BOOL isEight() {
    constexpr float kEight = 8;
    return systemVersion() >= kEight;
}

BOOL isPad() { return [[UIDevice currentDevice].model hasPrefix:@"iPad"]; }

} // namespace pendix
