// What the three lock faces are made of. Each is added to its parent, which alone retains it.
#pragma once

#include "Tweak/Core/PanelAnchor.h"
#include "Tweak/Lock/Lock.h"

#include <UIKit/UIKit.h>

namespace pendix {

// A clear face over the strip, as wide as the panel.
UIView *addFace(const LockFacesInput &input, NSInteger tag, CGFloat height);

// The face's title or message, centred, in ink.
UILabel *addFaceText(UIView *face, CGRect frame, NSString *text, NSInteger lines, const Scheme &scheme);

// A button with the text for `key`, which sends `action` to the application.
UIButton *addFaceButton(UIView *face, const LockFacesInput &input, CGRect frame, NSString *key, SEL action);

// The faces themselves.
UIView *addKeypad(const LockFacesInput &input, BOOL sensor);
UIView *addFingerFace(const LockFacesInput &input);
UIView *addAskFace(const LockFacesInput &input);

// Has the keypad's title say how many digits are entered; the dots are silent.
void tellEntered(UIView *keypad, int count);

// Gives the panel's keypad, if it has one, the sizes for the way the screen is held.
void layoutKeypad(BOOL sensor);

// A lock face of the panel by its tag, nil when it is not there.
UIView *lockFace(NSInteger tag);

// Whether the face is the shown panel's: what is touched while the panel closes does nothing.
BOOL isShown(UIView *face);

// Of the three faces, the one that VoiceOver finds; none for nil. The others wait beside it or behind it.
void letSpeak(UIView *face);

// Has the face read from its title over the keys to the buttons.
void orderFace(UIView *face);

// Whether the panel was built for a finger, or has been switched to it, and not to the keypad.
BOOL fingerFaceIsChosen();

void setX(UIView *view, CGFloat x);

} // namespace pendix
