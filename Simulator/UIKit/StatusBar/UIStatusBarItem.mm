#include "StatusBarState.h"

using sim::StatusBarItemState;

namespace sim {

const StatusBarItemState &state(UIStatusBarItem *item) {
    static const StatusBarItemState none;
    return item && item->_itemState ? *static_cast<StatusBarItemState *>(item->_itemState) : none;
}

void setState(UIStatusBarItem *item, const StatusBarItemState &state) {
    delete static_cast<StatusBarItemState *>(item->_itemState);
    item->_itemState = new StatusBarItemState(state);
}

UIStatusBarItem *makeStatusBarItem(const StatusBarItemState &state) {
    UIStatusBarItem *item = [[UIStatusBarItem new] autorelease];
    setState(item, state);
    return item;
}

} // namespace sim

@implementation UIStatusBarItem

- (void)dealloc {
    delete static_cast<StatusBarItemState *>(_itemState);
    [super dealloc];
}

- (int)type {
    return sim::state(self).type;
}

- (NSString *)indicatorName {
    const char *name = sim::state(self).indicatorName;
    return name ? [NSString stringWithUTF8String:name] : nil;
}

@end
