// The language tables, shared by the home-screen side and the pane, which support different languages.
// Nothing is cached: each call reads the tables.
#pragma once

#import <Foundation/Foundation.h>

#include <span>

namespace pendix {

// The first of the user's preferred languages when it is among `supported`, else "en".
NSString *preferredLanguage(std::span<NSString *const> supported);

// nil when the language has no table, or one that cannot be read.
NSDictionary *languageTable(NSString *language);

// See Translator.h, of which this is the language-neutral part.
NSString *textForKey(NSString *key, NSString *language);

// What a look-up gives that found nothing.
inline NSString *const missingText = @"(null)";

} // namespace pendix
