// What an item view on the strip carries beside its views, as values of its layer. An item's layer is named
// with its application's identifier.
#pragma once

#include <UIKit/UIKit.h>

// One drag of an item: from its begin until the item is at rest again or gone, unless another one takes its
// place.
@interface itemDrag : NSObject {
@public
    CGPoint start;  // where the finger began it, in the window
    float pace;     // of its animations: animationDuration of a second
    BOOL held;      // the finger is down
    BOOL displaced; // it has taken the item out of its row
}
@end

namespace pendix::itemState {

// Recognisers do not retain their delegate: it lives as long as the item.
inline void keepDelegate(UIView *item, id delegate) {
    [item.layer setValue:delegate forKey:@"swipeDelegate"];
}

// The target of its spoken actions, which they do not retain.
inline void keepActions(UIView *item, id actions) { [item.layer setValue:actions forKey:@"spokenActions"]; }

// An item on its way out; closing it twice would close its neighbour.
inline BOOL isClosing(UIView *item) { return [[item.layer valueForKey:@"closing"] boolValue]; }
inline void setClosing(UIView *item) {
    [item.layer setValue:[NSNumber numberWithBool:YES] forKey:@"closing"];
}

// The y at which the item lies at rest, in points, whatever a drag has done to it: where it lay when its
// first drag began, or now when there has been none.
inline CGFloat restingY(UIView *item) {
    NSNumber *y = [item.layer valueForKey:@"restingY"];
    return y ? [y floatValue] : item.frame.origin.y;
}
// Remembers it, the first time.
inline void rememberRestingY(UIView *item) {
    if (![item.layer valueForKey:@"restingY"])
        [item.layer setValue:[NSNumber numberWithFloat:static_cast<float>(item.frame.origin.y)]
                      forKey:@"restingY"];
}

// nil for an item at rest that no finger holds.
inline itemDrag *drag(UIView *item) { return [item.layer valueForKey:@"drag"]; }
inline void setDrag(UIView *item, itemDrag *drag) { [item.layer setValue:drag forKey:@"drag"]; }

} // namespace pendix::itemState
