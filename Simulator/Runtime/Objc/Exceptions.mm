#import <Foundation/Foundation.h>

#include "Exceptions.hpp"

#include "Methods.hpp"
#include "Runtime/Process/Crash.hpp"
#include "Runtime/Process/Events.hpp"

#include <cstdlib>

namespace sim {

namespace {

// Without the receiver's address, which would differ from run to run.
void reportUnrecognized(id self, char sign, SEL selector) {
    const char *className = object_getClassName(self);
    recordEvent("unrecognized", Object{{"class", className}, {"selector", sel_getName(selector)}});
    [NSException raise:NSInvalidArgumentException
                format:@"%c[%s %s]: unrecognized selector sent to %s", sign, className, sel_getName(selector),
                       sign == '+' ? "class" : "instance"];
}

void instanceLacks(id self, SEL, SEL selector) { reportUnrecognized(self, '-', selector); }
void classLacks(id self, SEL, SEL selector) { reportUnrecognized(self, '+', selector); }

void endWith(NSException *exception) {
    NSString *text = [NSString stringWithFormat:@"%@: %@", [exception name], [exception reason]];
    noteCrashReason([text UTF8String]);
    abort();
}

} // namespace

void installExceptions() {
    SEL selector = @selector(doesNotRecognizeSelector:);
    replaceMethod([NSObject class], selector, reinterpret_cast<IMP>(instanceLacks));
    replaceMethod(object_getClass([NSObject class]), selector, reinterpret_cast<IMP>(classLacks));
    NSSetUncaughtExceptionHandler(endWith);
}

} // namespace sim
