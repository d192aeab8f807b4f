#include "Tweak/Core/Screen.h"

#include <algorithm>

namespace pendix {

CGRect portraitScreenBounds() {
    CGSize size = [UIScreen mainScreen].bounds.size;
    return CGRectMake(0, 0, std::min(size.width, size.height), std::max(size.width, size.height));
}

float systemVersion() { return [[UIDevice currentDevice].systemVersion floatValue]; }

BOOL isPad() { return [[UIDevice currentDevice].model hasPrefix:@"iPad"]; }

} // namespace pendix
