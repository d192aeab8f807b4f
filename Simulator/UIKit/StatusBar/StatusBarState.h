// The simulator's side of the status bar. A process has one bar at most; its items may come before it.
#pragma once

#include "StatusBarLayout.hpp"

#include <UIKit/UIStatusBar.h>

// How a bar of one kind paints its items.
@interface UIStatusBarForegroundStyleAttributes : NSObject {
@public
    UIColor *_tintColor;
}
- (instancetype)initWithTintColor:(UIColor *)color;
- (UIColor *)tintColor;
// The file that holds an item's image: "Black_NAME".
- (NSString *)expandedNameForImageName:(NSString *)name;
@end

// "LockScreen_NAME".
@interface UIStatusBarLockScreenForegroundStyleAttributes : UIStatusBarForegroundStyleAttributes
@end

@interface UIStatusBarBackgroundView : UIView
@end

@interface UIStatusBarForegroundView (Simulator)
// Makes and drops item views until they are those of `sim::statusBarItems()`, and lays them out.
- (void)synchronizeItems;
- (UIStatusBarItemView *)viewForItem:(UIStatusBarItem *)item;
// Every item view in the style; what others did to their layers' shadows is gone.
- (void)applyStyle:(UIStatusBarForegroundStyleAttributes *)style;
// Every item view hears of new data.
- (void)updateData;
@end

@interface UIStatusBarItemView (Contents)
- (UIStatusBarForegroundStyleAttributes *)foregroundStyle;
- (void)setForegroundStyle:(UIStatusBarForegroundStyleAttributes *)style;
// Asks for `contentsImage` anew; returns the width that it takes.
- (CGFloat)updateContentsAndWidth;
- (_UILegibilityImageSet *)imageWithText:(NSString *)text;
- (_UILegibilityImageSet *)imageFromImage:(UIImage *)image;
@end

namespace sim {

struct StatusBarItemState {
    int type = 0;
    const char *indicatorName = nullptr;
    StatusBarSlot slot; // the width is the view's affair
    Class viewClass = Nil;
};

const StatusBarItemState &state(UIStatusBarItem *item);
// Gives an item, of whatever class, its state.
void setState(UIStatusBarItem *item, const StatusBarItemState &state);
UIStatusBarItem *makeStatusBarItem(const StatusBarItemState &state);

// The items that stand in the bar, retained by it.
const std::vector<UIStatusBarItem *> &statusBarItems();
void addStatusBarItem(UIStatusBarItem *item);
void removeStatusBarItem(UIStatusBarItem *item);
// What the item shows has changed.
void refreshStatusBarItem(UIStatusBarItem *item);
// nil while the item stands in no bar.
UIStatusBarItemView *statusBarItemView(UIStatusBarItem *item);

// The window with the bar and the system's own items; once a process.
UIStatusBarWindow *showStatusBar();

enum class StatusBarStyle { lightContent, darkContent, lockScreen };
void setStatusBarStyle(StatusBarStyle style);
// The same style once more: the bar lays its items out anew. Views stay, with the alpha that others gave
// them; what others put on their layers as a shadow goes. (Inferred.)
void layOutStatusBarAnew();
UIStatusBarForegroundStyleAttributes *statusBarStyle();

} // namespace sim
