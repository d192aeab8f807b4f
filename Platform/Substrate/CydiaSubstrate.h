// The hook engine.
#pragma once

#include <objc/runtime.h>

extern "C" {

// Replaces `selector` of `target` (instance methods; pass the metaclass for class methods) with
// `replacement` and stores the previous implementation in `*original`, which may be null.
// Does nothing when the class is nil or has no such method; `*original` is then null.
void MSHookMessageEx(Class target, SEL selector, IMP replacement, IMP *original);
}
