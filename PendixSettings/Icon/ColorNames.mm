#include "PendixSettings/Icon/ColorNames.h"

#include "PendixSettings/Core/PaneState.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"

namespace pendix::pane {

std::span<NSString *const> colorNames() {
    static NSString *const names[] = {@"red",     @"orange", @"yellow", @"green", @"cyan",  @"blue",
                                      @"magenta", @"purple", @"brown",  @"gray",  @"black", @"white"};
    return names;
}

NSString *stringFromColor(UIColor *color) {
    for (NSString *name : colorNames())
        if (colorFrom(name) == color) return name;
    return @"red";
}

NSString *editedColorKey() {
    if ([wtf isEqual:kIndeterminate]) return keys::markColor;
    return [wtf isEqual:kIcon] ? keys::pulseColor : nil;
}

} // namespace pendix::pane
