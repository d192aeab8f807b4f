#import <Foundation/Foundation.h>

#include "Messages.hpp"

#include "Runtime/Objc/Methods.hpp"
#include "Thunks.hpp"
#include "VariableArguments.hpp"

#include <objc/message.h>

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <set>
#include <stdexcept>
#include <vector>

namespace sim {

namespace {

// What is known of a message, once it was sent.
struct Known {
    void *entry = nullptr;  // instead of the method: translates variable arguments
    Route *route = nullptr; // with a result that is checked
};

std::string nameOf(Class target, SEL selector) {
    return std::string(class_isMetaClass(target) ? "+[" : "-[") + class_getName(target) + " " +
           sel_getName(selector) + "]";
}

macho::CallShape shapeOf(Class target, SEL selector, Method method) {
    try {
        return macho::callShape(method_getTypeEncoding(method));
    } catch (const std::invalid_argument &error) {
        refuseCall(nameOf(target, selector) + ": " + error.what());
    }
}

Known learn(Class target, SEL selector) {
    if (void *entry = variableArgumentsEntry(sel_getName(selector))) return {.entry = entry};
    Method method = class_getInstanceMethod(target, selector);
    if (!method) return {};
    macho::CallShape shape = shapeOf(target, selector, method);
    if (shape.packed)
        refuseCall(nameOf(target, selector) + " takes small arguments on the stack, which the device packs");
    if (shape.result == macho::Width::other) return {};
    if (shape.usesStack)
        refuseCall(nameOf(target, selector) +
                   " takes arguments on the stack, so that its result cannot be checked");
    return {.route = new Route{.target = nullptr,
                               .name = nameOf(target, selector),
                               .how = Passing::messageResult,
                               .shape = std::move(shape)}};
}

struct CacheLine {
    Class target;
    SEL selector;
    Known known;
};

const Known &knownOf(Class target, SEL selector) {
    constexpr size_t kLines = 1 << 13;
    static std::array<CacheLine, kLines> lines;
    static auto &all = *new std::map<std::pair<void *, void *>, Known>;
    auto key = reinterpret_cast<uintptr_t>(target) * 31 + reinterpret_cast<uintptr_t>(selector);
    CacheLine &line = lines[(key >> 4 ^ key >> 17) % kLines];
    if (line.target == target && line.selector == selector) return line.known;
    auto [entry, isNew] =
        all.try_emplace({reinterpret_cast<void *>(target), reinterpret_cast<void *>(selector)});
    if (isNew) entry->second = learn(target, selector);
    line = {target, selector, entry->second};
    return line.known;
}

} // namespace

// In two registers.
struct Found {
    void *code;
    Route *route;
};

namespace {

Found found(Class target, SEL selector, IMP code) {
    ++counts().messages;
    const Known &known = knownOf(target, selector);
    if (known.entry) return {known.entry, nullptr};
    if (!known.route) return {reinterpret_cast<void *>(code), nullptr};
    known.route->target = reinterpret_cast<void *>(code);
    return {resultChecker(), known.route};
}

} // namespace

void checkSelector(const std::string &name) {
    if (hasVariableArguments(name) && !variableArgumentsEntry(name.c_str()))
        throw std::runtime_error(
            "it sends " + name +
            ", whose variable arguments the device passes differently and nobody translates");
}

void checkMethodsHere(const std::string *names, size_t count) {
    // Fewer arguments than these fit into registers.
    constexpr long kFewest = 3;
    std::set<std::string_view> wanted;
    for (const std::string *name = names; name != names + count; ++name)
        if (std::ranges::count(*name, ':') >= kFewest) wanted.insert(*name);
    std::vector<Class> all(static_cast<size_t>(objc_getClassList(nullptr, 0)));
    objc_getClassList(all.data(), static_cast<int>(all.size()));
    for (Class owner : all)
        for (Class target : {owner, object_getClass(owner)}) {
            unsigned number = 0;
            Method *methods = class_copyMethodList(target, &number);
            std::vector<Method> list(methods, methods + number);
            free(methods);
            for (Method method : list) {
                SEL selector = method_getName(method);
                if (!wanted.contains(sel_getName(selector)) || hasVariableArguments(sel_getName(selector)))
                    continue;
                std::string name = nameOf(target, selector);
                try {
                    if (!macho::callShape(method_getTypeEncoding(method)).packed) continue;
                } catch (const std::invalid_argument &error) {
                    throw std::runtime_error(name + ": " + error.what());
                }
                throw std::runtime_error(name +
                                         " takes small arguments on the stack, which the device packs");
            }
        }
}

} // namespace sim

extern "C" {

struct SuperCall {
    id receiver;
    Class sender;
};

__attribute__((used, visibility("hidden"))) sim::Found simFindMethod(id receiver, SEL selector) {
    IMP code = objc_msg_lookup(receiver, selector);
    return sim::found(object_getClass(receiver), selector, code);
}

__attribute__((used, visibility("hidden"))) sim::Found simFindMethodAbove(SuperCall *call, SEL selector) {
    if (sim::variableArgumentsEntry(sel_getName(selector)))
        sim::refuseCall(std::string(sel_getName(selector)) + " is sent to super, with variable arguments");
    objc_super super = {call->receiver, class_getSuperclass(call->sender)};
    return sim::found(super.super_class, selector, objc_msg_lookup_super(&super, selector));
}

} // extern "C"
