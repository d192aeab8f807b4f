// Setters' ownership without a compiler that synthesises it: the old value is released after the new one is
// held, so that setting what is there already does no harm.
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
