#include "PendixSettings/Core/PaneTranslator.h"

#include "Tweak/Core/LanguageTable.h"

namespace pendix::pane {

namespace {

// Parsing is the most of what a page costs, so a table is parsed once for all rows that ask. The file is
// still read for each: what it says at that moment counts, and times of change are too coarse to tell.
NSDictionary *parsedTable(NSString *language) {
    static NSMutableDictionary *contents, *tables; // by language
    if (!contents) {
        contents = [[NSMutableDictionary alloc] init];
        tables = [[NSMutableDictionary alloc] init];
    }
    NSData *content = languageFile(language);
    if (content && [content isEqual:[contents objectForKey:language]]) return [tables objectForKey:language];
    NSDictionary *table = languageTable(language);
    [contents removeObjectForKey:language];
    [tables removeObjectForKey:language];
    if (content && table) {
        [contents setObject:content forKey:language];
        [tables setObject:table forKey:language];
    }
    return table;
}

} // namespace

NSString *lang() {
    NSString *const supported[] = {@"en", @"it"};
    return preferredLanguage(supported);
}

NSString *Translator(NSString *key) { return textForKey(key, lang(), parsedTable); }

NSString *shownText(NSString *key) {
    NSString *text = Translator(key);
    return text ? text : missingText;
}

NSString *getNotTranslated(NSString *text) {
    NSDictionary *table = parsedTable(lang());
    for (NSString *key in table)
        if ([[table objectForKey:key] isEqual:text]) return key;
    return missingText;
}

} // namespace pendix::pane
