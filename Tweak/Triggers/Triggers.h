// What opens and closes the panel from outside, as start-up sees it.
#pragma once

namespace pendix {

// Makes the panel an action of the gesture launcher; does nothing where none is installed.
void registerListener();

} // namespace pendix
