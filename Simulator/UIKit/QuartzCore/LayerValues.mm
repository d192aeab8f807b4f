#include "LayerState.h"

#include "Runtime/Objc/Ownership.h"

#include <algorithm>
#include <map>

using sim::state;

namespace {

// Most keys are constants of the program, so that comparing addresses finds them.
bool isSame(NSString *a, NSString *b) { return a == b || [a isEqualToString:b]; }

// The keys of a layer class that turned out to be no property, for the next time: to find that out takes
// looking for half a dozen methods.
std::vector<NSString *> &freeKeys(Class layerClass) {
    static auto &keys = *new std::map<Class, std::vector<NSString *>>; // retained
    return keys[layerClass];
}

bool isFree(Class layerClass, NSString *key) {
    const auto &known = freeKeys(layerClass);
    return std::any_of(known.begin(), known.end(), [=](NSString *each) { return isSame(each, key); });
}

void setFree(Class layerClass, NSString *key) {
    constexpr size_t kMostKept = 64;
    auto &known = freeKeys(layerClass);
    if (known.size() < kMostKept && !isFree(layerClass, key)) known.push_back([key copy]);
}

// nil takes it away.
void keep(CALayer *layer, NSString *key, id value) {
    auto &values = state(layer).values;
    auto found =
        std::find_if(values.begin(), values.end(), [=](auto &row) { return isSame(row.first, key); });
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
        [super setValue:value forKey:key];
    }
}

- (id)valueForUndefinedKey:(NSString *)key {
    for (const auto &[name, value] : state(self).values)
        if (isSame(name, key)) return value;
    return nil;
}

- (void)setValue:(id)value forUndefinedKey:(NSString *)key {
    setFree([self class], key);
    keep(self, key, value);
}

@end
