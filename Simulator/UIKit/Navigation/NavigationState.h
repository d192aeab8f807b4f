// The simulator's side of navigation: bars, their items and their buttons.
#pragma once

#include <UIKit/UIControl.h>
#include <UIKit/UINavigationController.h>
#include <UIKit/UIScrollView.h>

@interface UINavigationBar (Simulator)
// What an item says has changed: the bar makes its content anew with the next layout.
- (void)itemHasChanged;
// Shows the item, with a back button for `back` unless that is nil. `direction` slides the change in: 1 as
// for a push, -1 as for a pop, 0 at once.
- (void)showItem:(UINavigationItem *)item back:(UINavigationItem *)back direction:(int)direction;
// What the back button calls.
- (void)setBackTarget:(id)target action:(SEL)action;
@end

// The title in a bar.
@interface UINavigationItemView : UIView
- (instancetype)initWithTitle:(NSString *)title;
@end

// A button for an item of a bar: its text or its image.
@interface UINavigationButton : UIControl {
@public
    void *_navigationButtonState;
}
- (instancetype)initWithBarButtonItem:(UIBarButtonItem *)item;
- (NSString *)title;
@end

// The chevron and the title of the page that it leads to.
@interface UINavigationItemButtonView : UIControl {
@public
    void *_backButtonState;
}
- (instancetype)initWithTitle:(NSString *)title;
- (NSString *)title;
// Calls itself "Back" in the device's language, for lack of room.
- (void)shorten;
@end

namespace sim {

// The bar that shows the item hears of its changes; not retained.
void setBar(UINavigationItem *item, UINavigationBar *bar);
void setBar(UIBarButtonItem *item, UINavigationBar *bar);

// Lower on a phone that is held across. (Inferred: on the largest one too.)
CGFloat navigationBarHeight();

} // namespace sim
