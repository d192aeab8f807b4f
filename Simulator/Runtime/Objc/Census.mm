#import <Foundation/Foundation.h>

#include "Census.hpp"
#include "Methods.hpp"

#include <dlfcn.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <string_view>

#define INTERPOSED __attribute__((visibility("default")))

namespace {

// A table of fixed size that needs no constructor: objects are made before any has run, and by every thread.
struct Entry {
    std::atomic<void *> counted; // a class; the compiler's atomics take no such pointers
    std::atomic<long> live;
};
constexpr size_t kTableSize = 1 << 14;
constinit std::array<Entry, kTableSize> table{};

// Null when the table is full.
Entry *entryOf(void *counted) {
    size_t start = reinterpret_cast<size_t>(counted) / sizeof(void *) * 0x9e3779b97f4a7c15 >> 40;
    for (size_t step = 0; step < kTableSize; ++step) {
        Entry &entry = table[(start + step) % kTableSize];
        void *found = entry.counted.load(std::memory_order_acquire);
        if (!found && entry.counted.compare_exchange_strong(found, counted)) return &entry;
        if (found == counted) return &entry;
    }
    return nullptr;
}

void add(Class counted, long amount) {
    if (Entry *entry = entryOf(static_cast<void *>(counted)))
        entry->live.fetch_add(amount, std::memory_order_relaxed);
}

} // namespace

extern "C" {

INTERPOSED id NSAllocateObject(Class target, NSUInteger extraBytes, NSZone *zone) {
    static const auto next =
        reinterpret_cast<decltype(&NSAllocateObject)>(dlsym(RTLD_NEXT, "NSAllocateObject"));
    id object = next(target, extraBytes, zone);
    if (object) add(target, 1);
    return object;
}

INTERPOSED void NSDeallocateObject(id object) {
    static const auto next =
        reinterpret_cast<decltype(&NSDeallocateObject)>(dlsym(RTLD_NEXT, "NSDeallocateObject"));
    if (object) add(object_getClass(object), -1);
    next(object);
}

} // extern "C"

namespace sim {

namespace {

// Foundation's own of these two have the calls above inlined.
id allocate(Class self, SEL, NSZone *zone) { return NSAllocateObject(self, 0, zone); }
void deallocate(id self, SEL) { NSDeallocateObject(self); }

constinit std::atomic<size_t> observers = 0;
void (*addObserver)(id, SEL, id, SEL, NSString *, id) = nullptr;

void countObserver(id self, SEL _cmd, id observer, SEL selector, NSString *name, id object) {
    observers.fetch_add(1, std::memory_order_relaxed);
    addObserver(self, _cmd, observer, selector, name, object);
}

// Foundation turns some of its mutable collections into immutable ones where they lie.
std::string countedName(Class counted) {
    std::string name = class_getName(counted);
    constexpr std::string_view kMutable = "GSMutable";
    return name.starts_with(kMutable) ? "GS" + name.substr(kMutable.size()) : name;
}

} // namespace

void installCensus() {
    replaceMethod(object_getClass([NSObject class]), @selector(allocWithZone:),
                  reinterpret_cast<IMP>(allocate));
    replaceMethod([NSObject class], @selector(dealloc), reinterpret_cast<IMP>(deallocate));
    addObserver = reinterpret_cast<decltype(addObserver)>(
        replaceMethod([NSNotificationCenter class], @selector(addObserver:selector:name:object:),
                      reinterpret_cast<IMP>(countObserver)));
}

std::map<std::string, size_t> liveObjects() {
    std::map<std::string, long> sums;
    for (const Entry &entry : table)
        if (long live = entry.live) sums[countedName(static_cast<Class>(entry.counted.load()))] += live;
    std::map<std::string, size_t> result;
    for (const auto &[name, live] : sums)
        if (live > 0) result[name] = static_cast<size_t>(live);
    return result;
}

size_t observersAdded() { return observers.load(std::memory_order_relaxed); }

size_t liveCount(const char *className) {
    auto counts = liveObjects();
    auto found = counts.find(className);
    return found == counts.end() ? 0 : found->second;
}

} // namespace sim
