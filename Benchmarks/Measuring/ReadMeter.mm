#import <Foundation/Foundation.h>

#include "ReadMeter.hpp"

#include "Runtime/Files/FoundationFiles.hpp"

#include <ctime>
#include <objc/runtime.h>
#include <utility>
#include <valgrind/callgrind.h>

namespace bench {

namespace {

using Read = id (*)(Class, SEL, NSString *);

Read previous;
Metering current = Metering::off;
double seconds = 0;

id meteredRead(Class self, SEL selector, NSString *path) {
    if (current == Metering::off) return previous(self, selector, path);
    if (current == Metering::exclude) {
        CALLGRIND_TOGGLE_COLLECT;
        id content = previous(self, selector, path);
        CALLGRIND_TOGGLE_COLLECT;
        return content;
    }
    double start = processorTime();
    id content = previous(self, selector, path);
    seconds += processorTime() - start;
    return content;
}

} // namespace

void installReadMeter() {
    Method method = class_getClassMethod([NSDictionary class], @selector(dictionaryWithContentsOfFile:));
    previous = reinterpret_cast<Read>(method_getImplementation(method));
    method_setImplementation(method, reinterpret_cast<IMP>(meteredRead));
}

void setMetering(Metering metering) { current = metering; }
double takeReadSeconds() { return std::exchange(seconds, 0); }
size_t settingsReads() { return sim::fileCounts().reads; }

double processorTime() {
    timespec time;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

} // namespace bench
