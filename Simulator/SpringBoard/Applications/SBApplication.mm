#include "Applications.h"

#include "ApplicationLife.h"
#include "Runtime/Objc/Versions.hpp"
#include "Runtime/Process/Events.hpp"
#include "Snapshots.h"
#include "SpringBoard/Icons/Icons.h"

namespace {

using sim::record;

NSString *displayIdentifier(SBApplication *self, SEL) { return sim::identifierOf(self); }
// The system's own bookkeeping hangs here on a device.
void didActivate(SBApplication *, SEL) {}

const sim::VersionedMethod kMethods[] = {
    {"SBApplication", "displayIdentifier", "@@:", sim::implementation(displayIdentifier), sim::kOldest,
     sim::kLast7},
    {"SBApplication", "didActivate", "v@:", sim::implementation(didActivate), sim::kOldest, sim::kLast7},
};
const bool kRegistered = (sim::registerVersionedMethods(kMethods), true);

sim::Value badgeValue(id badge) {
    if ([badge isKindOfClass:[NSNumber class]]) return [badge integerValue];
    return badge ? sim::Value([[badge description] UTF8String]) : sim::Value(0);
}

} // namespace

@implementation SBApplication

- (NSString *)bundleIdentifier {
    return sim::identifierOf(self);
}

- (NSString *)displayName {
    return record(self).nameText;
}

- (id)badgeNumberOrString {
    return record(self).badge;
}

- (void)setBadge:(id)badge {
    id before = record(self).badge;
    bool same = badge == before || [badge isEqual:before];
    record(self).badge = [badge copy];
    sim::recordEvent("badge_set", sim::Object{{"id", record(self).identifier}, {"value", badgeValue(badge)}});
    if (!same) sim::badgeDidChange(self);
    [before release];
}

- (int)pid {
    return record(self).pid;
}

- (BOOL)isRunning {
    return record(self).pid > 0;
}

- (id)_process {
    return record(self).process;
}

- (void)deactivate {
    if (sim::frontApplication() == self) sim::returnToHomeScreen();
}

- (NSString *)_baseAppSnapshotPath {
    return sim::snapshotFolder(self);
}

// What follows from these two is the business of whoever calls them; they are for others to listen in.
- (void)willActivate {
}

- (void)willAnimateDeactivation:(BOOL)animated {
}

@end
