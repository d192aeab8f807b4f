// The controller behind the icons: what a tap on one does, and the folder that is open.
#pragma once

#include <SpringBoard/SBIcon.h>

@interface SBIconController (Icons) <UIScrollViewDelegate>
- (void)iconTapped:(SBIconView *)iconView;
@end
