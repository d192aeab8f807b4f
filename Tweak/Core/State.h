// The extension's process-wide variables on the home-screen side. All are touched on the main thread only and
// live as long as the process; the pane has variables of its own.
#pragma once

#include <SpringBoard/SpringBoard.h>
#include <StatusBar/LSStatusBarItem.h>

namespace pendix {

// Start-up (Start/Launch.mm).
inline SpringBoard *Spring = nil; // receiver of every added method when called from other classes' hooks
inline UIWindow *window = nil;    // the overlay; tags 21 and -1 from launch on, the panel while it is shown
inline LSStatusBarItem *statusbaritem = nil; // the indicator
inline NSMutableArray *datas =
    nil; // identifiers of applications with a badge, newest change first, no doubles

// The watched settings as they were last applied (Start/SettingsPoll.mm).
inline BOOL lastEnable = NO;   // `enable`
inline BOOL lastHide = NO;     // `hide`
inline BOOL lastTempor = NO;   // `hide_t`
inline BOOL lastSwitcher = NO; // `badge`

// Badges and indicator (StatusBar/).
inline UIWindow *window1 = nil;    // the status bar's window, stored before each look-up of the item view
inline float badgeHeight = 0;      // of the first home-screen badge view seen, in points; 0 until then
inline BOOL needToPulse = NO;      // a pulse runs
inline float co = 0;               // the alpha that the pulse computed last
inline float per = 0;              // its signed step
inline float lastx = 0;            // the item view's x when it was last seen
inline BOOL lastReachability = NO; // the Reachability state then

// Panel, its layout in points.
inline BOOL isShow = NO;        // the panel is shown; a new build is refused meanwhile
inline BOOL needPasscode = NO;  // the panel must be unlocked before use
inline BOOL requireFinger = NO; // the fingerprint sensor's events count
inline unsigned lockRound = 0;  // goes up with each opening and whatever else arms the lock (Lock/Entry.h)
inline float gheight = 0;       // the panel's height while its list shows
inline float lastGheight = 0;   // the same with cards; 0 without
inline float lastHeight = 0;    // with the Touch ID face
inline float lastHeight1 = 0;   // with the keypad
inline NSInteger pages = 0;     // of the strip
inline NSInteger last =
    UIInterfaceOrientationPortrait; // the interface orientation, 1 to 4, that the panel follows

// The clock on the panel: the moment at which it was set, and its hands' angles then in degrees.
inline float ss = 0, mm = 0, hh = 0;
inline float lastRotation = 0, lastRotation1 = 0, lastRotation2 = 0; // second, minute, hour

// Gestures on the panel.
inline BOOL isEditing = NO;         // close marks are shown
inline BOOL isSliding = NO;         // an application is being dragged off
inline BOOL sliding = NO;           // a drag has begun and not ended
inline CGPoint startPoint = {0, 0}; // of the drag, in the window
inline CGPoint endPoint = {0, 0};
inline float firstLocation = 0;     // the dragged item's y when the drag began
inline BOOL okay = NO;              // every application has been quit through the switcher already
inline NSString *openThisApp = @""; // to open once the device is unlocked; "" for none; owned

// Triggers.
inline BOOL locked = NO; // the display is off: the poll and badge-driven changes of the item pause

// Makes `datas`. The library's constructor calls it before anything else.
void createBadgeList();

} // namespace pendix
