// The panel's own code, as the setting `password` stores it.
#pragma once

#import <Foundation/Foundation.h>

namespace pendix {

// Whether there is one. A value of a wrong kind counts: it locks, and nothing opens it.
BOOL isPasscode(id stored);

// Exactly the same text; never for a value that is missing or no text.
BOOL matchesPasscode(NSString *entered, id stored);

} // namespace pendix
