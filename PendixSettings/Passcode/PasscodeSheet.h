// The sheet on which a code is typed: groups of a text and four dashes, side by side, and a hidden field that
// takes the digits. Of the root view's subviews group g has those from 5g on, the text first; the field is
// the last.
#pragma once

#include <UIKit/UIKit.h>

#include <span>

namespace pendix::pane {

// A place without a digit.
inline NSString *const kDash = @"dash.png";

struct DigitGroup {
    NSString *key; // of its text
    int screen;    // 0 is the middle, 1 one screen to the right, -1 to the left
};

struct PasscodeSheet {
    NSString *titleKey;
    id page;    // target of the two
    SEL cancel; // takes nothing
    SEL typed;  // takes the field, after each change of its text
    std::span<const DigitGroup> groups;
};

void present(const PasscodeSheet &sheet);
// The completion runs when it is gone.
void dismissSheet(void (^completion)(void));

// Shows what was typed into the group, and takes back what is no digit or one too many. YES with four digits.
BOOL enterInto(UITextField *field, NSInteger group);
// Vibrates and empties the group and the field.
void refuse(UITextField *field, NSInteger group);
// No more input counts.
void endEntry(UITextField *field);
// Moves the groups `first` and the one after it a screen to the left, and empties the field.
void advance(UITextField *field, NSInteger first);

} // namespace pendix::pane
