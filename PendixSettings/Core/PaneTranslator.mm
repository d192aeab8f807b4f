#include "PendixSettings/Core/PaneTranslator.h"

#include "Tweak/Core/LanguageTable.h"

namespace pendix::pane {

NSString *lang() {
    NSString *const supported[] = {@"en", @"it"};
    return preferredLanguage(supported);
}

NSString *Translator(NSString *key) { return textForKey(key, lang()); }

NSString *shownText(NSString *key) {
    NSString *text = Translator(key);
    return text ? text : missingText;
}

NSString *getNotTranslated(NSString *text) {
    NSDictionary *table = languageTable(lang());
    for (NSString *key in table)
        if ([[table objectForKey:key] isEqual:text]) return key;
    return missingText;
}

} // namespace pendix::pane
