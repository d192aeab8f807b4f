#include "Tweak/Core/Translator.h"

#include "Tweak/Core/LanguageTable.h"

namespace pendix {

NSString *Translator(NSString *key) {
    NSString *const supported[] = {@"en", @"it", @"es"};
    return textForKey(key, preferredLanguage(supported));
}

} // namespace pendix
