#include "LayerState.h"

using sim::state;

// A layer keeps any value under a key that is no property.
@implementation CALayer (Values)

// The layer's own storage is not to be reached by key.
+ (BOOL)accessInstanceVariablesDirectly {
    return NO;
}

- (id)valueForUndefinedKey:(NSString *)key {
    return [state(self).values objectForKey:key];
}

- (void)setValue:(id)value forUndefinedKey:(NSString *)key {
    auto &values = state(self).values;
    if (!value) return [values removeObjectForKey:key];
    if (!values) values = [NSMutableDictionary new];
    [values setObject:value forKey:key];
}

@end
