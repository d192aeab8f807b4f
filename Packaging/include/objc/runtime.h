// The part of the Objective-C runtime that the product and the probe call.
#pragma once

#include <objc/objc.h>
#include <stddef.h>

typedef struct objc_method *Method;
typedef struct objc_ivar *Ivar;

extern "C" {
Class objc_getClass(const char *name);
Class object_getClass(id object);
const char *object_getClassName(id object);
Ivar class_getInstanceVariable(Class target, const char *name);
size_t class_getInstanceSize(Class target);
const char *ivar_getTypeEncoding(Ivar variable);
const char *method_getTypeEncoding(Method method);
Ivar object_getInstanceVariable(id object, const char *name, void **value);
const char *class_getName(Class target);
Class class_getSuperclass(Class target);
Method class_getInstanceMethod(Class target, SEL selector);
BOOL class_addMethod(Class target, SEL selector, IMP implementation, const char *types);
SEL sel_registerName(const char *name);
const char *sel_getName(SEL selector);
BOOL sel_isEqual(SEL one, SEL other);
}
