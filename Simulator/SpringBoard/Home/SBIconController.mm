#include "SBIconController.h"

#include "FolderOverlay.h"
#include "HomeViews.h"
#include "SpringBoard/Applications/ApplicationLife.h"
#include "SpringBoard/Icons/Icons.h"

@implementation SBIconController

+ (instancetype)sharedInstance {
    static SBIconController *controller = [self new];
    return controller;
}

- (SBIconModel *)model {
    static SBIconModel *model = [SBIconModel new];
    return model;
}

@end

@implementation SBIconController (Icons)

- (void)iconTapped:(SBIconView *)iconView {
    SBIcon *icon = [iconView icon];
    if ([icon isFolderIcon]) return sim::openFolder(iconView);
    sim::launch(sim::state(icon).application, false);
}

- (void)scrollViewDidScroll:(UIScrollView *)scrollView {
    sim::showCurrentPage();
}

@end
