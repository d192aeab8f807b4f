#include "Probe/Declared.h"

#include "Probe/Question.h"
#include "Probe/Table.h"

#include <objc/runtime.h>

namespace probe {

namespace {

NSMutableDictionary *fact(BOOL present) {
    NSMutableDictionary *result = [NSMutableDictionary dictionary];
    [result setObject:flag(present) forKey:@"present"];
    return result;
}

NSDictionary *classFact(const char *name) {
    Class target = objc_getClass(name);
    NSMutableDictionary *result = fact(target != nil);
    if (!target) return result;
    NSMutableArray *chain = [NSMutableArray array];
    for (Class base = class_getSuperclass(target); base; base = class_getSuperclass(base))
        [chain addObject:text(class_getName(base))];
    [result setObject:chain forKey:@"superclass"];
    [result setObject:number(class_getInstanceSize(target)) forKey:@"size"];
    return result;
}

// The class in the chain that brings the method.
Class owner(Class target, SEL selector, Method method) {
    Class base = class_getSuperclass(target);
    while (base && class_getInstanceMethod(base, selector) == method) {
        target = base;
        base = class_getSuperclass(target);
    }
    return target;
}

NSDictionary *methodFact(const Member &member) {
    Class target = objc_getClass(member.className);
    if (target && member.name[0] == '+') target = object_getClass((id)target);
    SEL selector = sel_registerName(member.name + 1);
    Method method = target ? class_getInstanceMethod(target, selector) : nullptr;
    NSMutableDictionary *result = fact(method != nullptr);
    if (!method) return result;
    [result setObject:text(method_getTypeEncoding(method)) forKey:@"types"];
    [result setObject:text(class_getName(owner(target, selector, method))) forKey:@"owner"];
    return result;
}

NSDictionary *variableFact(const Member &member) {
    Class target = objc_getClass(member.className);
    Ivar variable = target ? class_getInstanceVariable(target, member.name) : nullptr;
    NSMutableDictionary *result = fact(variable != nullptr);
    if (variable) [result setObject:text(ivar_getTypeEncoding(variable)) forKey:@"types"];
    return result;
}

} // namespace

NSDictionary *declaredFacts() {
    NSMutableDictionary *facts = [NSMutableDictionary dictionary];
    for (const char *name : classes())
        [facts setObject:classFact(name) forKey:[NSString stringWithFormat:@"class %s", name]];
    for (const Member &method : methods())
        [facts setObject:methodFact(method)
                  forKey:[NSString stringWithFormat:@"method %c[%s %s]", method.name[0], method.className,
                                                    method.name + 1]];
    for (const Member &variable : variables())
        [facts setObject:variableFact(variable)
                  forKey:[NSString stringWithFormat:@"variable %s.%s", variable.className, variable.name]];
    return facts;
}

} // namespace probe
