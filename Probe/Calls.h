// Which of the methods that the extension replaces the system calls, and in which order.
#pragma once

#import <Foundation/Foundation.h>

namespace probe {

// Puts itself before each of the methods that this system has. Sends no message.
void watchCalls();

// Dictionaries of "call", as "-[CLASS selector]", and "time", in seconds since the first; the first 400
// calls.
NSArray *recordedCalls();

// Whether a call was recorded since the last time that this was asked.
BOOL hasNewCalls();

} // namespace probe
