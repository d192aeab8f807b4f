#pragma once

namespace sim {

// The status bar takes the style of what has the screen: lock screen, application or home screen; an
// application may do without one. Nothing is laid out anew when it has that style already. (Inferred: the
// home screen's own bar fades, and its application does not count it as hidden.)
void updateStatusBarStyle();

} // namespace sim
