// Questions that answer themselves at the launch, and while a person uses the device as docs/limitations.md
// asks.
#pragma once

#include "Probe/Question.h"

namespace probe {

// Each is unanswered (see Motion.h) until what it asks about has happened.
std::span<const char *const> watchedQuestions();

// Right after the launch.
void watchLaunch();
// From now on, for ten minutes; sends the answers of the launch too.
void watchPerson();

// Watches fingers on the home screen, without a say in what they do.
void watchFingers();
// The name of the run loop's mode goes to the question about what the scroll view under the last finger does.
void noteRunLoopMode();

} // namespace probe
