// Retaining and copying setters: the new value is retained before the old one is released, so that setting
// the same value again is safe.
#pragma once

#import <Foundation/Foundation.h>

namespace sim {

template <typename Slot, typename Object>
void retainInto(Slot &slot, Object value) {
    [value retain];
    [slot release];
    slot = value;
}

// For classes with a copy of their own kind.
template <typename Slot, typename Object>
void copyInto(Slot &slot, Object value) {
    Object copy = [value copy];
    [slot release];
    slot = copy;
}

} // namespace sim
