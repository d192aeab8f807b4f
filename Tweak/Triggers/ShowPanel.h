#pragma once

#import <Foundation/Foundation.h>

namespace pendix {

// Opens the panel from outside the status bar, whatever `enable` says: a caller that heeds the setting reads
// it itself. NO, with a line in the log, when the indicator has no view to open it from.
BOOL showPanel();

} // namespace pendix
