// The keyboard on the screen, in a window of its own above the application's.
#pragma once

#include <UIKit/UITextField.h>

// Sends its text to the first responder when it is pressed; a delete key takes the last character away.
@interface UIKeyboardKey : UIControl {
@public
    void *_keyState;
}
// What the key types; empty for the delete key.
- (NSString *)title;
@end

namespace sim {

// Slides in, or changes its keys when it is there already. Phones have a pad of digits for the number pad; on
// an iPad, as for all other types, the keys are those of digits and punctuation. (Letters are typed with a
// hardware keyboard only.)
void showKeyboard(UIKeyboardType type);
void hideKeyboard();

// The key of the keyboard shown that types the text (empty: the delete key); nil when there is none.
UIKeyboardKey *keyboardKey(NSString *text);

// A character as from a hardware keyboard, which has all of them. Nothing without a first responder.
void typeText(NSString *text);
void typeDelete();

} // namespace sim
