// What the process says to the system log, as events.
#import <Foundation/Foundation.h>

#include "Events.hpp"

#include <cstdarg>

#define INTERPOSED __attribute__((visibility("default")))

namespace {

// Foundation here logs what an observer of a notification throws, and goes on; on a device it ends the
// process.
void endWithObserver(NSString *format, va_list arguments) {
    bool named = [format isEqualToString:@"Problem posting %@: %@"];
    if (!named && ![format isEqualToString:@"Problem posting notification: %@"]) return;
    va_list values;
    va_copy(values, arguments);
    if (named) va_arg(values, id);
    id exception = va_arg(values, id);
    va_end(values);
    if (auto *end = NSGetUncaughtExceptionHandler()) end(exception);
}

// "<Thing: 0x55d2c0ffee>" names another address in every process; a run's log is to be that of the next.
std::string withoutAddresses(std::string text) {
    constexpr std::string_view kAddress = ": 0x";
    for (size_t at = 0; (at = text.find(kAddress, at)) != text.npos; ++at) {
        const size_t open = text.rfind('<', at),
                     last = text.find_first_not_of("0123456789abcdef", at + kAddress.size());
        if (open == text.npos || text.find_first_of(" >", open) < at || last == at + kAddress.size())
            continue;
        text.erase(at, std::min(last, text.size()) - at);
    }
    return text;
}

} // namespace

INTERPOSED void NSLogv(NSString *format, va_list arguments) {
    @autoreleasepool {
        endWithObserver(format, arguments);
        NSString *text = @"(null)";
        if (format) text = [[[NSString alloc] initWithFormat:format arguments:arguments] autorelease];
        // The log ends the line itself.
        if ([text hasSuffix:@"\n"]) text = [text substringToIndex:[text length] - 1];
        sim::recordEvent("log", sim::Object{{"text", withoutAddresses([text UTF8String])}});
    }
}

INTERPOSED void NSLog(NSString *format, ...) {
    va_list arguments;
    va_start(arguments, format);
    NSLogv(format, arguments);
    va_end(arguments);
}
