// The functions behind the hook table's rows that belong to the panel.
#pragma once

#include <SpringBoard/SpringBoard.h>
#include <UIKit/UIKit.h>

// Run in place of the system's methods.
namespace pendix::hooked {

BOOL performEscape(UIWindow *self, SEL _cmd);

} // namespace pendix::hooked

// What those ran before; null while the row is not installed.
namespace pendix::original {

inline decltype(&hooked::performEscape) performEscape = nullptr;

} // namespace pendix::original

// Methods that the system does not have; callers see them through the category headers.
namespace pendix::added {

void pendixWillRotate(SpringBoard *self, SEL _cmd, NSNotification *notification);
void dismisPendixUI(SpringBoard *self, SEL _cmd);
UIImage *imageForOrientation(SpringBoard *self, SEL _cmd, int orientation, NSString *path);
void prepareUI(SpringBoard *self, SEL _cmd, UIStatusBarItemView *item);
void liveClock(SpringBoard *self, SEL _cmd);
float degreesToRadians(SpringBoard *self, SEL _cmd, float degrees);
NSNumber *degreesToNumber(SpringBoard *self, SEL _cmd, float degrees);
void swipeToClose(SpringBoard *self, SEL _cmd, UIPanGestureRecognizer *recognizer);
void close(SpringBoard *self, SEL _cmd, UITapGestureRecognizer *recognizer);
void closeIcon(SpringBoard *self, SEL _cmd, UIView *item);
void tapPressEvent(SpringBoard *self, SEL _cmd, UITapGestureRecognizer *recognizer);
void longPressEvent(SpringBoard *self, SEL _cmd, UILongPressGestureRecognizer *recognizer);
void okay(SpringBoard *self, SEL _cmd);
void dismissRequest(SpringBoard *self, SEL _cmd);
void tap(SpringBoard *self, SEL _cmd);

} // namespace pendix::added
