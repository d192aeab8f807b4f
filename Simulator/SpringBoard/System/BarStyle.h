#pragma once

namespace sim {

// The status bar takes the style of what has the screen: lock screen, application or home screen. Nothing is
// laid out anew when it has that style already.
void updateStatusBarStyle();

} // namespace sim
