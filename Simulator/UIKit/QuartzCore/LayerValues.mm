#include "LayerState.h"

#include "Runtime/Objc/Ownership.h"

#include <algorithm>
#include <map>

using sim::state;

namespace {

// The place of `key` in the list of keys that `keyOf` gives; its end when it is not there. Most keys are
// constants of the program, so that comparing addresses finds them.
auto placeOf(NSString *key, auto &list, auto keyOf) {
    auto same = std::find_if(list.begin(), list.end(), [&](auto &row) { return keyOf(row) == key; });
    if (same != list.end()) return same;
    return std::find_if(list.begin(), list.end(),
                        [&](auto &row) { return [keyOf(row) isEqualToString:key]; });
}

auto placeIn(auto &values, NSString *key) {
    return placeOf(key, values, [](auto &row) { return row.first; });
}

// The keys of a layer class that turned out to be no property, for the next time: to find that out takes
// looking for half a dozen methods.
std::vector<NSString *> &freeKeys(Class layerClass) {
    static auto &keys = *new std::map<Class, std::vector<NSString *>>; // retained
    return keys[layerClass];
}

bool isFree(Class layerClass, NSString *key) {
    const auto &known = freeKeys(layerClass);
    return placeOf(key, known, [](NSString *each) { return each; }) != known.end();
}

void setFree(Class layerClass, NSString *key) {
    constexpr size_t kMostKept = 64;
    auto &known = freeKeys(layerClass);
    if (known.size() < kMostKept && !isFree(layerClass, key)) known.push_back([key copy]);
}

// What the call that is under way was given: on its way through Foundation a key becomes another object,
// where the caller's is a constant of the program most often.
NSString *given = nil;

// nil takes it away.
void keep(CALayer *layer, NSString *key, id value) {
    auto &values = state(layer).values;
    auto found = placeIn(values, key);
    if (found == values.end()) {
        if (value) values.push_back({[key copy], [value retain]});
    } else if (value) {
        sim::retainInto(found->second, value);
    } else {
        auto [oldKey, oldValue] = *found;
        values.erase(found);
        [oldKey release];
        [oldValue release];
    }
}

} // namespace

// A layer keeps any value under a key that is no property.
@implementation CALayer (Values)

// The layer's own storage is not to be reached by key.
+ (BOOL)accessInstanceVariablesDirectly {
    return NO;
}

- (void)setValue:(id)value forKey:(NSString *)key {
    if (isFree([self class], key)) {
        keep(self, key, value);
    } else {
        given = key;
        [super setValue:value forKey:key];
        given = nil;
    }
}

- (id)valueForUndefinedKey:(NSString *)key {
    auto &values = state(self).values;
    auto found = placeIn(values, key);
    return found == values.end() ? nil : found->second;
}

- (void)setValue:(id)value forUndefinedKey:(NSString *)key {
    if ([given isEqualToString:key]) key = given;
    setFree([self class], key);
    keep(self, key, value);
}

@end
