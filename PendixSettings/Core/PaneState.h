// The pane's own process-wide variables. All are touched on the main thread only and live as long as the
// process.
#pragma once

#include <UIKit/UIKit.h>

namespace pendix::pane {

// Of the page that is shown, as its header is laid out by: the root's and the colour page's, in points.
inline float width = 0;
inline float height = 0;
inline UIColor *color = nil; // its background; owned

inline NSString *wtf = nil; // whose colour the colour page edits: one of the next two
inline NSString *const kIndeterminate = @"Indeterminate", *const kIcon = @"Icon";
inline UIColor *ciccia = nil; // of the card that is shown, or was last; nil before the first; owned

inline BOOL whereShowed = NO; // the list of `where` has been entered and not been left yet
inline BOOL showed = NO;      // a passcode sheet is shown or being set up
inline NSMutableDictionary *pendingSettings = nil; // the settings to be, until the code is confirmed; owned
inline NSInteger changeStep = 0;                   // 0 the old code, 1 the new one, 2 again, 3 done
inline NSMutableArray *newCodes = nil;             // typed at step 1; the last one counts; owned

// Sets the first three from a page's view.
void measure(UIView *view);

// Sets an owned variable.
template <typename Object>
void keep(Object *&variable, Object *value) {
    [value retain];
    [variable release];
    variable = value;
}

} // namespace pendix::pane
