// The functions behind the hook table's rows that belong to start-up.
#pragma once

#include <SpringBoard/SpringBoard.h>

// Run in place of the system's methods.
namespace pendix::hooked {

void applicationDidFinishLaunching(SpringBoard *self, SEL _cmd, id application);

} // namespace pendix::hooked

// What those ran before; null while the row is not installed.
namespace pendix::original {

inline decltype(&hooked::applicationDidFinishLaunching) applicationDidFinishLaunching = nullptr;

} // namespace pendix::original

// Methods that the system does not have; callers see them through the category headers.
namespace pendix::added {

void preferenceChangesByMe(SpringBoard *self, SEL _cmd);

} // namespace pendix::added
