#import <Foundation/Foundation.h>

#include "Imports.hpp"

#include "Hooking.hpp"
#include "Messages.hpp"
#include "Runtime/Objc/HiddenClasses.hpp"
#include "Runtime/Process/SymbolLookup.hpp"
#include "Thunks.hpp"
#include "VariableArguments.hpp"

#include <dlfcn.h>
#include <link.h>
#include <map>
#include <objc/runtime.h>
#include <stdexcept>
#include <utility>

namespace sim {

namespace {

void *poolPush() { return [[NSAutoreleasePool alloc] init]; }
void poolPop(void *pool) { [static_cast<NSAutoreleasePool *>(pool) release]; }

// The setters that the device's compiler calls for a property that keeps or copies its value.
void replace(id self, ptrdiff_t offset, id value) {
    id *place = reinterpret_cast<id *>(reinterpret_cast<char *>(self) + offset);
    id old = std::exchange(*place, value);
    [old release];
}
void setRetained(id self, SEL, id value, ptrdiff_t offset) { replace(self, offset, [value retain]); }
void setCopied(id self, SEL, id value, ptrdiff_t offset) {
    replace(self, offset, [value copyWithZone:nullptr]);
}

void noLazyBinding() { refuseCall("a function was called that should have been bound before"); }

// Functions that were looked for are called as imported ones are.
void *lookUp(void *handle, const char *name) {
    constexpr intptr_t kAnywhere = -2;
    if (reinterpret_cast<intptr_t>(handle) != kAnywhere) refuseCall("dlsym with a handle");
    try {
        return findImport(std::string("_") + name);
    } catch (const std::runtime_error &error) {
        refuseCall(error.what());
    }
}

template <typename Function>
void *address(Function *function) {
    return reinterpret_cast<void *>(function);
}

// Where the device's name stands for something of another kind here.
void *shim(const std::string &symbol) {
    static void *emptyCache[2];
    static const std::map<std::string, void *> shims = {
        {"_objc_msgSend", address(simMessageSend)},
        {"_objc_msgSendSuper2", address(simMessageSendSuper)},
        {"_NSLog", address(simLogEntry)},
        {"_objc_autoreleasePoolPush", address(poolPush)},
        {"_objc_autoreleasePoolPop", address(poolPop)},
        {"_objc_setProperty_nonatomic", address(setRetained)},
        {"_objc_setProperty_nonatomic_copy", address(setCopied)},
        {"_MSHookMessageEx", address(simHookMessage)},
        {"_class_addMethod", address(simAddMethod)},
        {"_dlsym", address(lookUp)},
        {"__objc_empty_cache", emptyCache},
        {"dyld_stub_binder", address(noLazyBinding)},
        {"___CFConstantStringClassReference", reinterpret_cast<void *>(object_getClass(@""))},
    };
    auto found = shims.find(symbol);
    return found == shims.end() ? nullptr : found->second;
}

void *ivarOffset(const std::string &name) {
    size_t dot = name.find('.');
    Class owner = findHiddenClass(name.substr(0, dot).c_str());
    Ivar variable = owner && dot != std::string::npos
                        ? class_getInstanceVariable(owner, name.substr(dot + 1).c_str())
                        : nullptr;
    return variable ? new int32_t(static_cast<int32_t>(ivar_getOffset(variable))) : nullptr;
}

void *function(const std::string &name) {
    if (isVariadicFunction(name))
        throw std::runtime_error(
            "it calls " + name +
            ", whose variable arguments the device passes differently and nobody translates");
    void *found = platformSymbol(name);
    if (!found || !givesTruth(name)) return found;
    auto *route = new Route{.target = found,
                            .name = name,
                            .how = Passing::functionResult,
                            .shape = {.result = macho::Width::truth, .small = {}}};
    return checkedResult(*route);
}

bool isVariable(void *place) {
    Dl_info info;
    void *symbol = nullptr;
    return dladdr1(place, &info, &symbol, RTLD_DL_SYMENT) && symbol &&
           ELF64_ST_TYPE(static_cast<const ElfW(Sym) *>(symbol)->st_info) == STT_OBJECT;
}

struct Import {
    const char *kind;
    void *place;
};

Import look(const std::string &symbol) {
    if (void *place = shim(symbol)) return {"shims", place};
    auto after = [&](std::string_view prefix) {
        return symbol.starts_with(prefix) ? symbol.c_str() + prefix.size() : nullptr;
    };
    if (const char *name = after("_OBJC_CLASS_$_"))
        return {"classes", reinterpret_cast<void *>(findHiddenClass(name))};
    if (const char *name = after("_OBJC_METACLASS_$_")) {
        Class found = findHiddenClass(name);
        return {"metaclasses", found ? reinterpret_cast<void *>(object_getClass(found)) : nullptr};
    }
    if (const char *name = after("_OBJC_IVAR_$_")) return {"instance variables", ivarOffset(name)};
    if (symbol.size() < 2 || symbol[0] != '_') return {"", nullptr};
    void *place = function(symbol.substr(1));
    return {place && isVariable(place) ? "variables" : "functions", place};
}

} // namespace

void *findImport(const std::string &symbol) {
    static auto &known = *new std::map<std::string, void *>;
    auto [entry, isNew] = known.try_emplace(symbol, nullptr);
    if (!isNew) return entry->second;
    Import found = look(symbol);
    if (found.place) ++counts().imports[found.kind];
    return entry->second = found.place;
}

} // namespace sim
