// The simulator's side of the home screen's icons and their views.
#pragma once

#include "SpringBoard/Applications/Applications.h"
#include "UIKit/Images/ApplicationIcons.h"

#include <SpringBoard/SBIcon.h>

namespace sim {

struct IconState {
    SBApplication *application = nil; // of an application's icon
    SBFolder *folder = nil;           // of a folder's icon; retained
    SBIcon *container = nil;          // the folder's icon that holds this one; not retained
};

IconState &state(SBIcon *icon);
SBIcon *makeApplicationIcon(SBApplication *application);
SBFolderIcon *makeFolderIcon(const std::string &name, int number);
void putIntoFolder(SBIcon *icon, SBFolderIcon *folderIcon);
// In the order in which they were put in.
const std::vector<SBIcon *> &iconsInFolder(SBIcon *folderIcon);

// What stands on the home screen, in order; a folder stands where its first application does.
struct HomeIcons {
    std::vector<SBIcon *> pages, dock;
};
const HomeIcons &homeIcons();
// The icons of the installed applications; those of `specs` come to stand on the home screen. Once a process.
void makeIcons(const std::vector<ApplicationSpec> &specs);
// nil when there is none.
SBIcon *findIcon(NSString *identifier);
NSArray *allLeafIcons();

// Makes the views of all icons, which draw their badges as they stand.
void makeIconViews();
// The badge of an application has changed: its icon's view, and that of the folder around it, look again.
void badgeDidChange(SBApplication *application);
// The view from which the application opens: of its icon, of the closed folder around it; nil when neither is
// in sight.
SBIconView *visibleIconView(SBApplication *application);

// "1,234"; nil for no badge.
NSString *badgeText(SBIcon *icon);

} // namespace sim

@interface SBIcon (Simulator)
- (id)badgeNumberOrString;
@end

@interface SBFolderIconView : SBIconView
@end

@interface SBClockApplicationIconImageView : SBIconImageView
@end

@interface SBFolderIconImageView : SBIconImageView
@end

@interface SBIconImageView (Simulator)
- (void)setIcon:(SBIcon *)icon;
- (void)setHighlighted:(BOOL)highlighted;
@end

@interface SBIconView (Simulator)
- (instancetype)initWithDefaultSize;
- (void)setIcon:(SBIcon *)icon;
// A view inside a closed folder draws no badge; one in an open folder does.
- (void)setDrawsBadge:(BOOL)draws;
@end

@interface SBIconBadgeView (Simulator)
// Shows the icon's badge as it stands; the text image goes through `_resizeForTextImage:` when the text is
// another.
- (void)configureForIcon:(SBIcon *)icon location:(int)location highlighted:(BOOL)highlighted;
// Pops up, or shrinks and leaves its superview.
- (void)animateIn;
- (void)leaveAnimated:(BOOL)animated;
@end
