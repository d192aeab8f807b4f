// The indicator as the rest of the extension sees it: the badged applications, its view in the status bar,
// its pulse, and what keeps the panel on it. Added to the home screen's application, but for the last
// category.
#pragma once

#include <SpringBoard/SpringBoard.h>
#include <UIKit/UIStatusBar.h>

@interface SpringBoard (PendixBadges)
// Whether an application with a badge is listed. Applications hidden by their own setting leave the list
// here. NO in running mode and while the display is off.
- (BOOL)checkBadges;
@end

// All nil or empty while there is no status bar; `window1` must have been set to its window.
@interface SpringBoard (PendixItemView)
// The status bar's subview at that index; 1 is the foreground, which holds the item views.
- (UIView *)getForeGround:(int)index;
- (NSArray *)statusBarItemViews;
// Whether the view is the extension's item view.
- (BOOL)isPendix:(id)view;
// The extension's item view; nil, with a line in the log, when the item is invisible or absent.
- (UIStatusBarItemView *)pendix;
@end

@interface SpringBoard (PendixPulse)
// Starts the pulse in that colour unless one runs, `glow` is off or `hide` is on.
- (void)makePulse:(UIColor *)color;
// One step, sent by the pulse's own timer.
- (void)pulse:(NSTimer *)timer;
// The timer ends with its next step.
- (void)removePulse;
@end

@interface SpringBoard (PendixFollower)
// Sent every tenth of a second while the panel is shown: dims the other items and moves the panel with its
// own.
- (void)alphaStatusBar:(NSTimer *)timer;
@end

// What the indicator asks for; the lock and the panel answer.
namespace pendix {

// Whether the panel would show a face of the lock if it were opened now.
BOOL panelWouldAsk();
// How many applications it would list.
int applicationsWaiting();

} // namespace pendix

@interface SpringBoard (PendixIndicatorTap)
// Opens the panel out of the indicator, unless `enable` is off.
- (void)tap;
@end

@interface UIStatusBarItemView (Pendix)
- (BOOL)isPendix:(id)view;
@end

// When the indicator shows and when it pulses, in one place.
// - It shows while `enable` is on and `hide` is off, and with `hide_t` only while an application with a badge
//   is listed.
// - Badges count for it while `enable` is on, running mode and `hide` are off, and the display is on.
// - It pulses while badges count, `glow` is on and an application with a badge is listed.
// Each function is for one moment at which the rule is looked at, and applies the part that this moment can
// have changed. Between these moments nothing moves the indicator.
namespace pendix {

// A home-screen badge was drawn, or the list of badges was tidied: hides by `hide`, which a launch does not
// look at; where badges count, shows or hides by `hide_t`, and starts or ends the pulse. `settings` as the
// file is now. Looks through the list once at most.
void indicatorFollowsBadges(NSDictionary *settings);

// The settings that move the indicator without a badge.
struct WatchedSettings {
    BOOL enable, hide, onlyWithBadges, running; // `enable`, `hide`, `hide_t`, `badge`
};
// The poll has read them. Where they differ from those that were applied last, they are applied and
// remembered: visibility by the first three, the image by the last one, the pulse by all of them. Nothing
// else is read or changed while they are the same.
void indicatorFollowsSettings(const WatchedSettings &now);

// The display turns off: the pulse ends.
void indicatorGoesDark();
// The display has turned on: as for a badge, since those that came in the dark have not moved it.
void indicatorWakes();

// Whether the application's icon carries a badge; NO without an icon.
BOOL carriesBadge(NSString *identifier);
// What `checkBadges` tells, of settings that were read already: takes applications that are left out by now
// off the list, and says whether any is left. NO while the display is off and in running mode.
BOOL badgesAreListed(NSDictionary *settings);
// There was nothing to list: what still carries a badge stays on the list, in its order, everything else
// goes. The indicator does not follow by itself.
void keepBadgedApplications();

// What a pulse asks by itself, whoever wants it: `glow` on and `hide` off.
BOOL mayPulse();

} // namespace pendix
