// The Objective-C runtime's basic types, as a device has them.
#pragma once

#if defined(__LP64__)
typedef bool BOOL;
#else
typedef signed char BOOL;
#endif

#define YES ((BOOL)1)
#define NO ((BOOL)0)
#define nil nullptr
#define Nil nullptr

typedef struct objc_class *Class;
struct objc_object {
    Class isa;
};
typedef struct objc_object *id;
typedef struct objc_selector *SEL;
typedef void (*IMP)(void);
