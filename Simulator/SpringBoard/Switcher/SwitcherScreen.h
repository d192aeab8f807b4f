// The switcher's own screen: a row of cards, the home screen's first and then one an application, each with
// its icon below.
#pragma once

#include <SpringBoard/SBApplication.h>

namespace sim {

bool switcherIsOpen();
// Out of what is in front. Nothing happens while it is open.
void openSwitcher();
// Back into what is in front. false when it is not open.
bool closeSwitcher(bool animated);

} // namespace sim
