// The extension's texts on the home-screen side.
#pragma once

#import <Foundation/Foundation.h>

namespace pendix {

// The text for `key` in the user's first language when that is English, Italian or Spanish, otherwise in
// English. A text that is missing or empty there is taken from the English table; "(null)" when that has none
// either, or when the language has no table at all.
NSString *Translator(NSString *key);

} // namespace pendix
