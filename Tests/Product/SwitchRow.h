// A row of the pane by itself, for the setters that are called with one.
#pragma once

#include <Preferences/Preferences.h>

namespace harness {

inline PSSpecifier *switchRow(NSString *label) {
    return [PSSpecifier preferenceSpecifierNamed:label
                                          target:nil
                                             set:nullptr
                                             get:nullptr
                                          detail:Nil
                                            cell:PSSwitchCell
                                            edit:Nil];
}

} // namespace harness
