// The home screen's window: wallpaper, pages of icons with their dots, dock.
#pragma once

#include "HomeLayout.hpp"

#include <UIKit/UIKit.h>

@interface SBWallpaperView : UIView
@end

@interface SBRootIconListView : UIView
@end

@interface SBIconScrollView : UIScrollView
@end

@interface SBDockView : UIView
@end

@interface SBIconListPageControl : UIView {
@public
    size_t _pages, _current;
}
@end

namespace sim {

// SBWindow, the class of the system's windows: a UIWindow (7.x) or an FBWindow (8.x), and made when it is
// first asked for, since its superclass follows the version.
Class homeWindowClass();

// Builds and shows the window with the views of all icons. Once a process.
void showHomeWindow();
UIWindow *homeWindow();
// For the interface as it is turned now.
HomeLayout currentHomeLayout();
// Pages, dots and dock anew, for the size that the window has now; the first page shows.
void layOutHomeAnew();

// The page whose middle is nearest gets the bright dot.
void showCurrentPage();
// Back to the first page. false when it is shown already.
bool scrollToFirstPage();

} // namespace sim
