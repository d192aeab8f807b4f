// The panel's views, found by their tags. Each is nil while the panel, or that part of it, is not there.
#pragma once

#include <UIKit/UIKit.h>

namespace pendix {

UIView *panelView();    // the backdrop that holds everything
UIView *contentView();  // in the panel
UIScrollView *strip();  // in the content view, whether page dots come before it or not
UIView *pageDotsView(); // in the content view

// A direct subview of the overlay window, or of `parent`, with that tag.
UIView *overlayView(NSInteger tag);
UIView *subviewWithTag(UIView *parent, NSInteger tag);

// The item views on the strip, in their order: one an application, its layer named with the identifier.
NSArray *itemViews();

// The height of badges on the panel: the home screen's, or the usual one while none has been seen.
CGFloat panelBadgeHeight();

// The buttons right in `view`, or `view` if it is one, send nothing any more. A finger that still holds one
// would be answered by whatever stands there when it is lifted.
void letGoOfButtons(UIView *view);

// Sets the frame's height or y alone.
void setHeight(UIView *view, CGFloat height);
void setY(UIView *view, CGFloat y);

} // namespace pendix
