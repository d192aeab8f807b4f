#include "Tweak/Core/Accessibility/Wording.h"

#include "Tweak/Core/Translator.h"

namespace pendix {

namespace {

NSString *replaceFirst(NSString *text, NSString *number) {
    const NSRange place = [text rangeOfString:@"%d"];
    if (!number || place.location == NSNotFound) return text;
    return [NSString stringWithFormat:@"%@%@%@", [text substringToIndex:place.location], number,
                                      [text substringFromIndex:place.location + place.length]];
}

} // namespace

NSString *filledIn(NSString *text, NSString *first, NSString *second) {
    return text ? replaceFirst(replaceFirst(text, first), second) : nil;
}

NSString *digits(NSInteger number) { return [NSString stringWithFormat:@"%ld", static_cast<long>(number)]; }

NSString *grouped(NSInteger number) {
    constexpr NSInteger kGroup = 1000;
    if (number > -kGroup && number < kGroup) return digits(number);
    const int rest = static_cast<int>(number % kGroup);
    NSString *between = Translator(@"spoken_group");
    if ([between length] != 1) between = @""; // no table has it
    return
        [NSString stringWithFormat:@"%@%@%03d", grouped(number / kGroup), between, rest < 0 ? -rest : rest];
}

NSString *waitingText(int count, BOOL running) {
    if (count == 0) return Translator(running ? @"no_running_apps" : @"no_badge");
    if (count == 1) return Translator(running ? @"one_app" : @"one_badge");
    return filledIn(Translator(running ? @"you_have_app" : @"you_have_badge"), digits(count));
}

} // namespace pendix
