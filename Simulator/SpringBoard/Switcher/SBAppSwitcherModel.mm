#include "SwitcherModel.h"

#include "Runtime/Objc/Versions.hpp"
#include "Runtime/Process/Device.hpp"
#include "SBAppSwitcherModel+Further.h"
#include "SpringBoard/Applications/Applications.h"

namespace {

constexpr long long kFullScreen = 0;

bool hasLayouts() { return sim::device().version >= sim::kFirst8; }

// The list that the system version has.
NSMutableArray *entries(SBAppSwitcherModel *model) {
    return hasLayouts() ? model->_recentDisplayLayouts : model->_recentDisplayIdentifiers;
}

NSString *firstIdentifier(id entry) {
    if (!hasLayouts()) return entry;
    NSArray *items = [static_cast<SBDisplayLayout *>(entry) displayItems];
    return [items count] ? [[items objectAtIndex:0] displayIdentifier] : nil;
}

NSArray *identifiers(SBAppSwitcherModel *self, SEL) {
    NSMutableArray *result = [NSMutableArray array];
    for (id entry in entries(self))
        if (NSString *identifier = firstIdentifier(entry)) [result addObject:identifier];
    return result;
}

void removeDisplayItem(SBAppSwitcherModel *self, SEL, SBDisplayItem *item) {
    for (SBDisplayLayout *layout in [NSArray arrayWithArray:entries(self)])
        if ([[layout displayItems] containsObject:item]) [self remove:layout];
}

const sim::VersionedMethod kMethods[] = {
    {"SBAppSwitcherModel", "identifiers", "@@:", sim::implementation(identifiers), sim::kOldest, sim::kLast7},
    {"SBAppSwitcherModel", "snapshotOfFlattenedArrayOfAppIdentifiersWhichIsOnlyTemporary",
     "@@:", sim::implementation(identifiers), sim::kFirst8, sim::kNewest},
    {"SBAppSwitcherModel", "removeDisplayItem:", "v@:@", sim::implementation(removeDisplayItem), sim::kFirst8,
     sim::kNewest},
};
const bool kRegistered = (sim::registerVersionedMethods(kMethods), true);

} // namespace

@implementation SBAppSwitcherModel

+ (instancetype)sharedInstance {
    static SBAppSwitcherModel *model = [self new];
    return model;
}

- (instancetype)init {
    if (!(self = [super init])) return nil;
    (hasLayouts() ? _recentDisplayLayouts : _recentDisplayIdentifiers) = [NSMutableArray new];
    return self;
}

- (void)remove:(id)entry {
    if (entry) [entries(self) removeObject:entry];
}

- (void)addToFront:(id)entry {
    if (!entry) return;
    [[entry retain] autorelease];
    [self remove:entry];
    [entries(self) insertObject:entry atIndex:0];
}

@end

namespace sim {

id switcherEntry(NSString *identifier) {
    if (!hasLayouts()) return identifier;
    id item = [objc_getClass("SBDisplayItem") displayItemWithType:@"App" displayIdentifier:identifier];
    if (!item) return nil;
    return [[[objc_getClass("SBDisplayLayout") alloc] initWithLayoutSize:kFullScreen
                                                            displayItems:[NSArray arrayWithObject:item]]
        autorelease];
}

void moveToSwitcherFront(SBApplication *application) {
    [[SBAppSwitcherModel sharedInstance] addToFront:switcherEntry(identifierOf(application))];
}

std::vector<std::string> switcherIdentifiers() {
    std::vector<std::string> result;
    for (NSString *identifier in identifiers([SBAppSwitcherModel sharedInstance], nullptr))
        result.push_back([identifier UTF8String]);
    return result;
}

} // namespace sim
