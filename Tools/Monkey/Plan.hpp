// What a hand does one thing after the other: put at the end of its plan.
#pragma once

#include "Hand.hpp"

namespace sim {

using Step = std::string (*)(Hand &);

void plan(Hand &hand, std::string line);
void planWait(Hand &hand, int64_t least, int64_t most); // milliseconds, both ends included
// At once, or a little later: up to that many milliseconds.
void planPause(Hand &hand, int64_t most);

// The display off and on again, most often unlocked as well.
void planDark(Hand &hand);

// A lock with a code, of any kind, for the settings file.
Object lockToSet(Hand &hand);
// What passes the face of the panel's lock that is there; an empty line when nothing does.
std::string passLock(Hand &hand);
// Takes the question before the lock away, if there is one.
std::string passQuestion(Hand &hand);

} // namespace sim
