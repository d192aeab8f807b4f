// What the process says to the system log, as events.
#import <Foundation/Foundation.h>

#include "Events.hpp"

#include <cstdarg>

#define INTERPOSED __attribute__((visibility("default")))

INTERPOSED void NSLogv(NSString *format, va_list arguments) {
    @autoreleasepool {
        NSString *text = @"(null)";
        if (format) text = [[[NSString alloc] initWithFormat:format arguments:arguments] autorelease];
        // The log ends the line itself.
        if ([text hasSuffix:@"\n"]) text = [text substringToIndex:[text length] - 1];
        sim::recordEvent("log", sim::Object{{"text", [text UTF8String]}});
    }
}

INTERPOSED void NSLog(NSString *format, ...) {
    va_list arguments;
    va_start(arguments, format);
    NSLogv(format, arguments);
    va_end(arguments);
}
