// The pane's own process-wide variables. All are touched on the main thread only and live as long as the
// process.
#pragma once

#include <UIKit/UIKit.h>

namespace pendix::pane {

// Of the page that is shown, as its header is laid out by: the root's and the colour page's, in points.
extern float width;
extern float height;
extern UIColor *color; // its background; owned

extern NSString *wtf; // whose colour the colour page edits: one of the next two
extern NSString *const kIndeterminate, *const kIcon;
extern UIColor *ciccia; // of the card that was swiped to last; nil before the first; owned

extern BOOL whereShowed;                     // the list of `where` has been entered and not been left yet
extern BOOL showed;                          // a passcode sheet is shown or being set up
extern NSMutableDictionary *pendingSettings; // the settings to be, until the code is confirmed; owned
extern NSInteger changeStep;                 // 0 the old code, 1 the new one, 2 again, 3 done
extern NSMutableArray *newCodes;             // typed at step 1; the last one counts; owned

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
