#pragma once

#include <Preferences/Preferences.h>

// Fills the colour page: a preview in the colour of the card that is shown, and below it the cards to swipe
// through, one a colour, round and round. Laid out for the pane's `width`, `height` and `color`.
@interface cards
    : PSTableCell <PSHeaderFooterView, UIPageViewControllerDataSource, UIPageViewControllerDelegate> {
    UIPageViewController *_controller;
    NSMutableArray *controllers; // in the order of the colours
}
// The name stored for what is edited; nil without one.
- (id)getValue;
// Fades the icon's preview in (YES) or out, then back, without end while the cell is in a window.
- (void)animatePreview:(BOOL)shown;
@end
