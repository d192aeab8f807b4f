// The items that the system itself puts into the status bar.
#pragma once

#include "StatusBarState.h"

@interface UIStatusBarSignalStrengthItemView : UIStatusBarItemView
@end
@interface UIStatusBarServiceItemView : UIStatusBarItemView
@end
@interface UIStatusBarDataNetworkItemView : UIStatusBarItemView
@end
@interface UIStatusBarTimeItemView : UIStatusBarItemView
@end
@interface UIStatusBarBatteryPercentItemView : UIStatusBarItemView
@end
@interface UIStatusBarBatteryItemView : UIStatusBarItemView
@end

namespace sim {

// Items with this order and more stand further in than the system's own on the same side.
constexpr int kFirstForeignOrder = 10;

// The items of this device.
std::vector<UIStatusBarItem *> stockStatusBarItems();

} // namespace sim
