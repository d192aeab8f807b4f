// Every setting, one line each: the one place that says how it is stored. docs/settings.md, the tests' lists
// and the random user's choices are made from these lines (scripts/setting-table), so a line says all of it:
//   SETTING(name, stored key, kind, what may be stored, what counts without it, page of the pane, meaning)
// Kinds: toggle (boolean), choice (one of the texts), color (a colour's name), code (a text of digits),
// record (a text that the extension writes itself); "application" before a kind: not in the file's own
// dictionary but in the one that stands under an application's identifier. Pages: root, configuration, icon,
// marks, reachability, passcode, application; none for what no row of the pane stores. A row of the pane is
// labelled with the text of its key, so each key needs a text in every language.
#pragma once

#import <Foundation/Foundation.h>

// clang-format off
#define PENDIX_SETTINGS(SETTING) \
    SETTING(enabled, "enable", toggle, "", "off", root, "The extension works at all: the indicator shows, the panel opens, badges are restyled") \
    SETTING(lightScheme, "light", toggle, "", "off", configuration, "Black ink on light material, instead of white on dark") \
    SETTING(clearBackground, "back", toggle, "", "off", configuration, "The screen behind the panel stays nearly clear instead of dimmed") \
    SETTING(blursScreen, "blur", toggle, "", "off", configuration, "The whole screen behind the panel is blurred") \
    SETTING(fastAnimations, "fast", toggle, "", "off", configuration, "The panel's animations take a quarter of their time") \
    SETTING(cards, "ca", toggle, "", "off", configuration, "Applications are shown as cards with their newest snapshot") \
    SETTING(followsPosition, "rech", toggle, "", "off", reachability, "The panel stands where `position` says; without it only Reachability brings it down") \
    SETTING(position, "position", choice, "top middle bottom", "top", reachability, "Where the panel stands") \
    SETTING(closeMarks, "close", toggle, "", "off", configuration, "Applications are closed by marks, after a long press, instead of by swipes") \
    SETTING(paging, "paging", toggle, "", "off", configuration, "The panel turns pages instead of scrolling freely") \
    SETTING(hidesBadges, "b", toggle, "", "off", configuration, "The home screen's own badges are hidden") \
    SETTING(showsMarks, "newb", toggle, "", "off", marks, "A small mark stands for a badge that `b` hides") \
    SETTING(marksTakeIconColor, "auto", toggle, "", "off", marks, "A mark takes the main colour of its icon instead of `colors`") \
    SETTING(markColor, "colors", color, "", "red", marks, "The colour of the marks") \
    SETTING(runningMode, "badge", toggle, "", "off", configuration, "The panel lists running applications instead of badged ones") \
    SETTING(rows, "amount", choice, "1 2 3 4 5", "4 on an iPad, 3 elsewhere", configuration, "Applications side by side; 5 is offered on an iPad only") \
    SETTING(hidesIndicator, "hide", toggle, "", "off", icon, "The indicator never shows") \
    SETTING(hidesWithoutBadges, "hide_t", toggle, "", "off", icon, "The indicator shows only while there are badges") \
    SETTING(pulses, "glow", toggle, "", "off", icon, "The indicator pulses while there are badges") \
    SETTING(pulseColor, "tint", color, "", "red; clear without a file", icon, "The colour of the pulse's glow") \
    SETTING(lockEnabled, "pass", toggle, "", "off", passcode, "The panel is locked, as soon as there is a code") \
    SETTING(passcode, "password", code, "", "none", passcode, "The panel's own code of four digits") \
    SETTING(unlocksByFinger, "touchid", toggle, "", "off", passcode, "A finger on the sensor unlocks the panel") \
    SETTING(labelledKeys, "clear", toggle, "", "off", passcode, "The keypad's keys show their digits and letters") \
    SETTING(lockMoment, "where", choice, "lockscreen every everyoff", "every", passcode, "When the lock asks: while the device is locked, at every opening, or once after each turning off of the display") \
    SETTING(asksFirst, "ask", toggle, "", "off", passcode, "A locked panel first tells how many applications wait") \
    SETTING(hasSensor, "hasTouchID", record, "0 1", "0", none, "Whether the device has a Touch ID sensor; written at each launch for the pane") \
    SETTING(appHidden, "hide_perapp", application toggle, "", "off", application, "The application is left out of the list") \
    SETTING(appWithoutMark, "badge_perapp", application toggle, "", "off", application, "The application's icon never gets a mark")
// clang-format on

namespace pendix::keys {

#define PENDIX_SETTING_KEY(name, stored, ...) inline NSString *const name = @stored;
PENDIX_SETTINGS(PENDIX_SETTING_KEY)
#undef PENDIX_SETTING_KEY

} // namespace pendix::keys
