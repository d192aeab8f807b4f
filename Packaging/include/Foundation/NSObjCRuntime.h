#pragma once

#include <objc/runtime.h>
#include <stddef.h>
#include <stdint.h>

#if defined(__LP64__)
typedef long NSInteger;
typedef unsigned long NSUInteger;
typedef double CGFloat;
#else
typedef int NSInteger;
typedef unsigned int NSUInteger;
typedef float CGFloat;
#endif
typedef double NSTimeInterval; // seconds

#define NSIntegerMax ((NSInteger)(~(NSUInteger)0 >> 1))
#define NSNotFound NSIntegerMax

typedef struct _NSZone NSZone;

@class NSString;
extern "C" {
void NSLog(NSString *format, ...);
Class NSClassFromString(NSString *name);
NSString *NSStringFromClass(Class target);
SEL NSSelectorFromString(NSString *name);
}
