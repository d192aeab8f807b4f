#include "Tweak/Core/LanguageTable.h"

#include "Tweak/Core/Names.h"

namespace pendix {

namespace {

NSString *const kEnglish = @"en";

NSString *tablePath(NSString *language) {
    return names::supportFile([NSString stringWithFormat:@"Languages/%@.plist", language]);
}

BOOL hasTable(NSString *language) {
    NSFileManager *files = [NSFileManager defaultManager];
    NSString *path = tablePath(language);
    return [files fileExistsAtPath:path] && [files isReadableFileAtPath:path];
}

// nil for what is no text: the file may have been made by anybody.
NSString *textIn(NSDictionary *table, NSString *key) {
    id text = [table objectForKey:key];
    return [text isKindOfClass:[NSString class]] ? text : nil;
}

} // namespace

NSString *preferredLanguage(std::span<NSString *const> supported) {
    id languages = [[NSUserDefaults standardUserDefaults] objectForKey:@"AppleLanguages"];
    NSString *first =
        [languages isKindOfClass:[NSArray class]] && [languages count] ? [languages objectAtIndex:0] : nil;
    for (NSString *language : supported)
        if ([language isEqual:first]) return language;
    return kEnglish;
}

NSDictionary *languageTable(NSString *language) {
    return hasTable(language) ? [NSDictionary dictionaryWithContentsOfFile:tablePath(language)] : nil;
}

NSData *languageFile(NSString *language) {
    return hasTable(language) ? [NSData dataWithContentsOfFile:tablePath(language)] : nil;
}

NSString *textForKey(NSString *key, NSString *language, NSDictionary *(*tableOf)(NSString *language)) {
    if (!hasTable(language)) return missingText;
    NSString *text = textIn(tableOf(language), key);
    if ([text length] || !hasTable(kEnglish)) return text;
    NSString *english = textIn(tableOf(kEnglish), key);
    return [english length] ? english : missingText;
}

} // namespace pendix
