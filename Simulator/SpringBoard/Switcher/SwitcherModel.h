// The switcher's list, in the shape that the system version gives it.
#pragma once

#include <SpringBoard/SBApplication.h>

#include <string>
#include <vector>

@interface SBDisplayItem (Making)
+ (instancetype)displayItemWithType:(NSString *)type displayIdentifier:(NSString *)identifier;
@end

@interface SBDisplayLayout (Making)
- (instancetype)initWithLayoutSize:(long long)size displayItems:(NSArray *)items;
- (long long)layoutSize;
@end

// From 8.0 on.
@interface SBAppSwitcherModel (DisplayItems)
- (void)removeDisplayItem:(SBDisplayItem *)item;
@end

namespace sim {

// What the list holds for an application: its identifier (7.x) or a display layout (8.x).
id switcherEntry(NSString *identifier);
void moveToSwitcherFront(SBApplication *application);
// Takes the application out of the list and ends its process, through the switcher's controller of this
// system version.
void quitFromSwitcher(SBApplication *application);
// Identifiers, most recent first.
std::vector<std::string> switcherIdentifiers();

} // namespace sim
