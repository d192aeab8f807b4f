#include "Icons.h"

#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Process/Device.hpp"

using sim::state;

namespace sim {

IconState &state(SBIcon *icon) { return lazyState<IconState>(icon->_iconState); }

SBIcon *makeApplicationIcon(SBApplication *application) {
    SBIcon *icon = [[SBApplicationIcon new] autorelease];
    state(icon).application = application;
    return icon;
}

NSString *badgeText(SBIcon *icon) {
    id badge = [icon badgeNumberOrString];
    if (!badge || ([badge isKindOfClass:[NSNumber class]] && [badge integerValue] <= 0)) return nil;
    std::string text = [[badge description] UTF8String];
    if (text.empty()) return nil;
    // Thousands are set apart, as the language writes it.
    if ([badge isKindOfClass:[NSNumber class]])
        for (size_t at = text.size(); at > 3; at -= 3)
            text.insert(at - 3, device().language == "en" ? "," : ".");
    return [NSString stringWithUTF8String:text.c_str()];
}

} // namespace sim

@implementation SBIcon

- (void)dealloc {
    [state(self).folder release];
    delete &state(self);
    [super dealloc];
}

- (NSString *)nodeIdentifier {
    return nil;
}

// Sets of icons are enumerated in the same order in every process.
- (NSUInteger)hash {
    return [[self nodeIdentifier] hash];
}

- (NSString *)displayName {
    return nil;
}

- (BOOL)isFolderIcon {
    return NO;
}

- (id)badgeNumberOrString {
    return nil;
}

- (int)accessoryTypeForLocation:(int)location {
    enum { kNone = 0, kBadge = 1 };
    return sim::badgeText(self) ? kBadge : kNone;
}

// A text counts as the number that it begins with.
- (NSInteger)badgeValue {
    return [[self badgeNumberOrString] integerValue];
}

@end

@implementation SBLeafIcon
@end

@implementation SBApplicationIcon

- (SBApplication *)application {
    return state(self).application;
}

- (NSString *)nodeIdentifier {
    return sim::identifierOf(state(self).application);
}

- (NSString *)displayName {
    return [state(self).application displayName];
}

- (id)badgeNumberOrString {
    return [state(self).application badgeNumberOrString];
}

@end
