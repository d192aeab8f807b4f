// The extension's process-wide variables on the home-screen side. All are touched on the main thread only and
// live as long as the process; the pane has variables of its own.
#pragma once

#include <SpringBoard/SpringBoard.h>
#include <StatusBar/LSStatusBarItem.h>

namespace pendix {

// Start-up (Core/Launch.mm).
extern SpringBoard *Spring; // receiver of every added method when called from other classes' hooks
extern UIWindow *window;    // the overlay; tags 21 and -1 from launch on, the panel while it is shown
extern LSStatusBarItem *statusbaritem; // the indicator
extern NSMutableArray *datas; // identifiers of applications with a badge, newest change first, no doubles

// The watched settings as they were last applied (Core/SettingsPoll.mm).
extern BOOL lastEnable;   // `enable`
extern BOOL lastHide;     // `hide`
extern BOOL lastTempor;   // `hide_t`
extern BOOL lastSwitcher; // `badge`

// Badges and indicator (StatusBar/).
extern UIWindow *window1;     // the status bar's window, stored before each look-up of the item view
extern float badgeHeight;     // of the first home-screen badge view seen, in points; 0 until then
extern BOOL needToPulse;      // a pulse runs
extern float co;              // the alpha that the pulse computed last
extern float per;             // its signed step
extern float lastx;           // the item view's x when it was last seen
extern BOOL lastReachability; // the Reachability state then

// Panel, its layout in points.
extern BOOL isShow;        // the panel is shown; a new build is refused meanwhile
extern BOOL needPasscode;  // the panel must be unlocked before use
extern BOOL requireFinger; // the fingerprint sensor's events count
extern float gheight;      // the panel's height while its list shows
extern float lastGheight;  // the same with cards; 0 without
extern float lastHeight;   // with the Touch ID face
extern float lastHeight1;  // with the keypad
extern NSInteger pages;    // of the strip
extern NSInteger last;     // the interface orientation, 1 to 4, that the panel follows

// The clock on the panel: the moment at which it was set, and its hands' angles then in degrees.
extern float ss, mm, hh;
extern float lastRotation, lastRotation1, lastRotation2; // second, minute, hour

// Gestures on the panel.
extern BOOL isEditing;     // close marks are shown
extern BOOL isSliding;     // an application is being dragged off
extern BOOL sliding;       // a drag has begun and not ended
extern CGPoint startPoint; // of the drag, in the window
extern CGPoint endPoint;
extern float firstLocation;   // the dragged item's y when the drag began
extern BOOL okay;             // every application has been quit through the switcher already
extern NSString *openThisApp; // to open once the device is unlocked; "" for none; owned

// Triggers.
extern BOOL locked; // the display is off: the poll and badge-driven changes of the item pause

// Makes `datas`. The library's constructor calls it before anything else.
void createBadgeList();

} // namespace pendix
