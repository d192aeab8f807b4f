#pragma once

#include <Preferences/Preferences.h>

// The root page's header: the name, shimmering, on white that reaches up behind the navigation bar, with a
// tab that joins it to the page below. Laid out for the pane's `width`, `height` and `color`.
@interface HeaderCellForPendix : PSTableCell <PSHeaderFooterView> {
    UIView *_logo;
    UIView *_connector;
}
@end
