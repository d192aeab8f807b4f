// The mark on an application by which it is closed, and quitting what was closed.
#pragma once

#include <UIKit/UIView.h>

namespace pendix {

// Grows around its corner of the icon, or shrinks into it, over `duration` seconds.
void showCloseMark(UIView *item, float duration);
void hideCloseMark(UIView *item, float duration);

// The close mark that a touch at `point` of the strip is for, nil when it is for something else. All that is
// seen of a mark takes touches, also beyond its item's edge, and ten points around it where nothing else
// lies.
UIView *closeMarkAt(UIView *strip, CGPoint point);

// In running mode from 8.0 on: quits everything in the switcher, shown or not, and remembers that it did.
// Otherwise does nothing.
void quitThroughSwitcher();

// Quits one application, in the way of the system's version.
void quit(NSString *identifier);

} // namespace pendix
