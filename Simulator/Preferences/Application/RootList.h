// The list of everything that can be set, and on an iPad the pane beside it.
#pragma once

#include <Preferences/Preferences.h>

@interface PSUIPrefsListController : PSListController {
@public
    void *_rootListState;
}
// Where pages are opened: on an iPad the pane at the right; else the list's own navigation.
- (void)setDetailNavigation:(UINavigationController *)navigation;
// false when there is no such entry, or its page cannot be made.
- (BOOL)openEntryNamed:(NSString *)name animated:(BOOL)animated;
@end

// Two controllers side by side.
@interface PSSplitViewController : UIViewController {
@public
    void *_splitState;
}
- (instancetype)initWithList:(UIViewController *)list pane:(UIViewController *)pane;
@end
