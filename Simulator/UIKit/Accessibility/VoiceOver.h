// The system's reader, as far as a process knows it: what has the focus, and what is said without being
// asked.
#pragma once

#import <Foundation/Foundation.h>

namespace sim {

// Carries out the notifications that were posted since the last time, once what they tell of is laid out.
void speakPosted();

} // namespace sim
