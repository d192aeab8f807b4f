#import <Foundation/Foundation.h>

#include "Hooking.hpp"

#include "Thunks.hpp"

#include <Substrate/CydiaSubstrate.h>

#include <map>
#include <stdexcept>

namespace sim {

namespace {

macho::CallShape shapeOf(const char *types, const std::string &name) {
    try {
        macho::CallShape shape = macho::callShape(types);
        if (!shape.packed) return shape;
    } catch (const std::invalid_argument &error) {
        throw std::runtime_error(name + ": " + error.what());
    }
    throw std::runtime_error(name + " takes small arguments on the stack, which the device packs");
}

std::string nameOf(Class target, SEL selector) {
    return std::string(class_isMetaClass(target) ? "+[" : "-[") + class_getName(target) + " " +
           sel_getName(selector) + "]";
}

// At run time nobody is there to catch.
IMP enteredOrRefused(IMP implementation, const char *types, const std::string &name) {
    try {
        return enteredFromHere(implementation, types, name);
    } catch (const std::runtime_error &error) {
        refuseCall(error.what());
    }
}

} // namespace

IMP enteredFromHere(IMP implementation, const char *types, const std::string &name, bool block) {
    macho::CallShape shape = shapeOf(types, name);
    if (shape.small.empty()) return implementation;
    static auto &known = *new std::map<std::pair<void *, std::string>, void *>;
    void *&made = known[{reinterpret_cast<void *>(implementation), name}];
    if (!made)
        made = checkedArguments(*new Route{.target = reinterpret_cast<void *>(implementation),
                                           .name = name,
                                           .how = block ? Passing::blockArgument : Passing::methodArgument,
                                           .shape = std::move(shape)});
    return reinterpret_cast<IMP>(made);
}

} // namespace sim

void simHookMessage(Class target, SEL selector, IMP replacement, IMP *previous) {
    Method method = target && selector ? class_getInstanceMethod(target, selector) : nullptr;
    if (!method) return MSHookMessageEx(target, selector, replacement, previous);
    std::string name = sim::nameOf(target, selector);
    const char *types = method_getTypeEncoding(method);
    MSHookMessageEx(target, selector, sim::enteredOrRefused(replacement, types, name), previous);
    if (!previous || !*previous) return;
    auto shape = sim::macho::callShape(types);
    if (shape.result == sim::macho::Width::other) return;
    *previous = reinterpret_cast<IMP>(
        sim::checkedResult(*new sim::Route{.target = reinterpret_cast<void *>(*previous),
                                           .name = name + " as it was",
                                           .how = sim::Passing::messageResult,
                                           .shape = shape}));
}

BOOL simAddMethod(Class target, SEL selector, IMP implementation, const char *types) {
    if (!target || !selector || !types) return NO;
    return class_addMethod(
        target, selector, sim::enteredOrRefused(implementation, types, sim::nameOf(target, selector)), types);
}
