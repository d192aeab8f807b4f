// Tags of the overlay window's views. Views are found again by these and never kept in variables.
#pragma once

#import <Foundation/Foundation.h>

namespace pendix::tags {

// Direct subviews of the window, made at launch for the life of the process.
constexpr NSInteger screenBackdrop = 21; // the whole screen's blur
constexpr NSInteger dismissView = -1;    // clear; a tap on it closes the panel

// Direct subviews of the window while the panel is shown.
constexpr NSInteger logo = 1;   // copy of the status-bar glyph
constexpr NSInteger bubble = 2; // blurred disc behind the item
constexpr NSInteger panel = 3;  // the panel's backdrop

// In the panel: its one content view, and in that, beside the strip, the dots, the prompt and the lock faces.
constexpr NSInteger content = 1;
constexpr NSInteger pageDots = 56; // each dot is tagged with its page
constexpr NSInteger promptText = 100, promptCancel = 101, promptOkay = 102;
constexpr NSInteger askFace = 44, fingerFace = 45, keypadFace = 46;

// In an item view on the strip. An item view itself is untagged, but for the clock's.
constexpr NSInteger clockItem = 10;
constexpr NSInteger itemIcon = 1;
constexpr NSInteger itemCardIcon = -19;
constexpr NSInteger closeMark = -1;
constexpr NSInteger itemBadge = 99;
constexpr NSInteger secondHand = 1000, minuteHand = 1001, hourHand = 1002; // in the clock's icon

// In the lock faces.
constexpr NSInteger faceTitle = -1;
constexpr NSInteger faceButton = -2;      // keypad: cancel or delete; ask face: unlock
constexpr NSInteger firstPasscodeDot = 1; // of four; the digit keys are tagged by keyOfDigit()
constexpr NSInteger glyph = 1, fingerCancel = 2, fingerPasscode = 3;

// On a home-screen icon: the small mark in place of its badge.
constexpr NSInteger iconMark = 1953;

} // namespace pendix::tags
