#include "Tweak/Core/LanguageTable.h"

#include "Tweak/Core/Names.h"

namespace pendix {

NSString *const missingText = @"(null)";

namespace {

NSString *const kEnglish = @"en";

NSString *tablePath(NSString *language) {
    return [[names::languageFolder stringByAppendingString:language] stringByAppendingString:@".plist"];
}

BOOL hasTable(NSString *language) {
    NSFileManager *files = [NSFileManager defaultManager];
    NSString *path = tablePath(language);
    return [files fileExistsAtPath:path] && [files isReadableFileAtPath:path];
}

BOOL hasLength(id text) { return [text respondsToSelector:@selector(length)] && [text length] != 0; }

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

NSString *textForKey(NSString *key, NSString *language) {
    if (!hasTable(language)) return missingText;
    NSString *text = [languageTable(language) objectForKey:key];
    if (hasLength(text) || !hasTable(kEnglish)) return text;
    NSString *english = [languageTable(kEnglish) objectForKey:key];
    return hasLength(english) ? english : missingText;
}

} // namespace pendix
