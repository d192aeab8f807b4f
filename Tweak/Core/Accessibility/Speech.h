// What is said to those who listen, without being asked. Nothing while VoiceOver is off.
#pragma once

#include "Tweak/Core/Translator.h"

#include <UIKit/UIView.h>

namespace pendix {

// Says the text for `key`.
void announce(NSString *key, NSString *(*translate)(NSString *) = Translator);
// Says which page shows now.
void announcePage(NSString *text);

// Another screen has come: the focus goes to the element, or to the first one for nil.
void focusOnScreen(id element);
// The same within a screen, when a part of it has changed.
void focusOnChange(id element);

// The elements of the view in the order in which they are read, also where the panel is turned and the screen
// is not; nil leaves it to the system. Before 8.0 the system decides.
void readInOrder(UIView *container, NSArray *elements);

} // namespace pendix
