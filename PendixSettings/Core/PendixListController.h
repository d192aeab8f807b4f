// What every page of the pane shares: its rows are built once, and their values stand in the settings file.
#pragma once

#include <Preferences/Preferences.h>

@interface PendixListController : PSListController
// For subclasses: the page's rows, as they are to be built when there are none.
- (NSArray *)buildRows;
// The file's entry for the key that the row's label stands for; nil without one, and for one that no cell can
// show.
- (id)getValue:(PSSpecifier *)row;
// Writes it, at once; tells nobody.
- (void)setValue:(id)value forSpecifier:(PSSpecifier *)row;
// Shows a group of the page, its rows and its footer, as they are by now. Nothing for another page's.
- (void)showAgain:(PSSpecifier *)group;
@end

namespace pendix::pane {

// The value if it is a number or a text, else nil: cells ask either for its truth, and an array would end the
// process.
id showable(id value);

} // namespace pendix::pane
