// Sheets over everything, one at a time.
#pragma once

#include <UIKit/UIKit.h>

namespace pendix::pane {

// Something is presented, or has not slid out yet: nothing else can be.
BOOL sheetIsUp();

// Slides the sheet in. NO when another one is up; then nothing happens. `page`, which the sheet's buttons
// call, lives as long as the sheet.
BOOL presentSheet(UIViewController *sheet, id page, void (^completion)(void));

// Slides it out. The completion runs when it is gone.
void dismissSheet(void (^completion)(void));

} // namespace pendix::pane
