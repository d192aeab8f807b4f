// The sheet on which a code is typed, and what typing does to it. Its page shows a PasscodeView.
#pragma once

#include "PendixSettings/Passcode/DigitEntry.hpp"

#include <UIKit/UIKit.h>

#include <span>

namespace pendix::pane {

// A place without a digit.
inline NSString *const kDash = @"dash.png";
// Subviews of a group: its text and its digits.
inline constexpr NSUInteger kGroupSize = 1 + kDigits;

struct PasscodeSheet {
    NSString *titleKey;
    id page;                           // target of the two
    SEL cancel;                        // takes nothing
    SEL typed;                         // takes the field, after each change of its text
    std::span<NSString *const> groups; // the keys of their texts
    NSInteger first;                   // the group that is typed first
};

// The page lives as long as the sheet. NO when something else is presented: then there is no sheet.
BOOL present(const PasscodeSheet &sheet);

// Shows what was typed into the group, and takes back what is no digit or one too many. YES with four digits.
BOOL enterInto(UITextField *field, NSInteger group);
// Vibrates and empties the group and the field.
void refuse(UITextField *field, NSInteger group);
// No more input counts.
void endEntry(UITextField *field);
// Goes on from the group to the next one, which comes in from the right, and empties the field.
void advance(UITextField *field, NSInteger group);

} // namespace pendix::pane
