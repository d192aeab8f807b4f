// The panel's rows of the hook table. The panel itself is not built yet: its methods are in place, so that
// the table is whole and whoever sends them is answered, and do nothing.
#include "Tweak/Core/Replacements.h"

namespace pendix::added {

void pendixWillRotate(SpringBoard *, SEL, NSNotification *) {}
void dismisPendixUI(SpringBoard *, SEL) {}
UIImage *imageForOrientation(SpringBoard *, SEL, int, NSString *) { return nil; }
void prepareUI(SpringBoard *, SEL, UIStatusBarItemView *) {}
void dismisPendixUIorDelete(SpringBoard *, SEL, UIButton *) {}
void liveClock(SpringBoard *, SEL) {}
void swipeToClose(SpringBoard *, SEL, UIPanGestureRecognizer *) {}
void close(SpringBoard *, SEL, UITapGestureRecognizer *) {}
void closeIcon(SpringBoard *, SEL, UIView *) {}
void tapPressEvent(SpringBoard *, SEL, UITapGestureRecognizer *) {}
void longPressEvent(SpringBoard *, SEL, UILongPressGestureRecognizer *) {}
void okay(SpringBoard *, SEL) {}
void dismissRequest(SpringBoard *, SEL) {}
void tap(SpringBoard *, SEL) {}

} // namespace pendix::added
