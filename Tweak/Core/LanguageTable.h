// The language tables, shared by the home-screen side and the pane, which support different languages.
// Nothing is cached here: each call reads the tables.
#pragma once

#import <Foundation/Foundation.h>

#include <span>

namespace pendix {

// The first of the user's preferred languages when it is among `supported`, else "en".
NSString *preferredLanguage(std::span<NSString *const> supported);

// nil when the language has no table, or one that cannot be read.
NSDictionary *languageTable(NSString *language);

// What stands in that table's file, for comparing; nil without one that can be read.
NSData *languageFile(NSString *language);

// See Translator.h, of which this is the language-neutral part. `tableOf` gives a language's table.
NSString *textForKey(NSString *key, NSString *language,
                     NSDictionary *(*tableOf)(NSString *language) = languageTable);

// What a look-up gives that found nothing.
inline NSString *const missingText = @"(null)";

} // namespace pendix
