// Pages that packages add to Settings: property lists in one folder, each with an `entry` that names a
// bundle.
#pragma once

#include <Preferences/PSSpecifier.h>

namespace sim {

// A row for each entry, sorted by the names of their files; those that cannot be read are passed over with a
// warning. The identifier is the file's name without its extension.
NSArray *preferenceEntries(id target, SEL action);

// The page that the entry leads to, its bundle loaded; autoreleased. nil, with a warning, when the bundle or
// its class is missing.
id makeEntryController(PSSpecifier *entry);

} // namespace sim
