#include "Tweak/Core/Replacements.h"
#include "Tweak/Core/Screen.h"
#include "Tweak/Core/SpringBoard+Device.h"

#include <Darwin/sysctl.h>

#include <span>
#include <vector>

namespace pendix::added {

namespace {

NSString *const kModelsWithSensor[] = {@"iPhone6,1", @"iPhone6,2", @"iPhone7,1", @"iPhone7,2", @"iPad5,3",
                                       @"iPad5,4",   @"iPad4,7",   @"iPad4,8",   @"iPad4,9"};
NSString *const kBigPhones[] = {@"iPhone7,1", @"iPhone7,2"};

BOOL isAmong(NSString *model, std::span<NSString *const> models) {
    for (NSString *candidate : models)
        if ([candidate isEqualToString:model]) return YES;
    return NO;
}

} // namespace

NSString *getSysInfoByName(SpringBoard *, SEL, char *name) {
    size_t size = 0;
    sysctlbyname(name, nullptr, &size, nullptr, 0);
    // Zeroed and one byte longer than asked for, so that a name the system does not know reads as empty text.
    std::vector<char> buffer(size + 1);
    sysctlbyname(name, buffer.data(), &size, nullptr, 0);
    return [NSString stringWithCString:buffer.data() encoding:NSUTF8StringEncoding];
}

NSString *modelIdentifier(SpringBoard *self, SEL) {
    char name[] = "hw.machine";
    return [self getSysInfoByName:name];
}

BOOL hasTouchID(SpringBoard *self, SEL) { return isAmong([self modelIdentifier], kModelsWithSensor); }

BOOL hasBigScreen(SpringBoard *self, SEL) { return isPad() || isAmong([self modelIdentifier], kBigPhones); }

} // namespace pendix::added
