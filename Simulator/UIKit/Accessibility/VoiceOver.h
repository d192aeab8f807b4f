// The system's reader, as far as a process knows it: what has the focus, and what is said without being
// asked.
#pragma once

#import <Foundation/Foundation.h>

#include <string>

namespace sim {

// What has the focus; nil while nothing does, as always while the reader is off. An element that is gone
// hands the focus to the one that is nearest to its place, and the first of all has it at the beginning.
id focusedElement();
// Both hear of it. Nothing happens while the reader is off.
void moveFocus(id element);

// Carries out the notifications that were posted since the last time, once what they tell of is laid out.
// Every text that is said becomes an event.
void speakPosted();

// What is said of an element that gets the focus: its label and its value.
std::string utterance(id element);

// The element has gone.
void forgetFocus(id element);

} // namespace sim
