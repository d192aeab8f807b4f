// Texts with numbers in them.
#pragma once

#import <Foundation/Foundation.h>

namespace pendix {

// `first` and `second`, if not nil, stand where the text first says "%d", and where it says so again. A text
// comes from a file and is never a format itself. nil for nil.
NSString *filledIn(NSString *text, NSString *first, NSString *second = nil);

// The number's digits, without groups.
NSString *digits(NSInteger number);

// The number as the user's language writes it, "1,204": groups of three, with what the language tables have
// between them.
NSString *grouped(NSInteger number);

// How many applications are running, or have a badge.
NSString *waitingText(int count, BOOL running);

} // namespace pendix
