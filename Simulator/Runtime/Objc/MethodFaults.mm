#import <Foundation/Foundation.h>

#include "MethodFaults.hpp"

#include "HiddenClasses.hpp"
#include "Methods.hpp"

#include <dlfcn.h>
#include <link.h>

#include <map>
#include <set>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

namespace sim {

namespace {

// Class (a metaclass for class methods) and name of the selector.
using Key = std::pair<void *, std::string_view>;

struct Faults {
    std::vector<std::pair<uintptr_t, uintptr_t>> systemCode; // from, to
    std::set<Key> hidden;
    std::map<Key, IMP> silenced; // with what ran before
    BOOL (*respondsToSelector)(id, SEL, SEL) = nullptr;
};

// Null until there is a fault; never destroyed, since messages are sent until the very end.
constinit Faults *faults = nullptr;

int addCode(dl_phdr_info *object, size_t, void *) {
    for (int i = 0; i < object->dlpi_phnum; ++i) {
        const auto &segment = object->dlpi_phdr[i];
        uintptr_t from = object->dlpi_addr + segment.p_vaddr;
        if (segment.p_type == PT_LOAD) faults->systemCode.push_back({from, from + segment.p_memsz});
    }
    return 0;
}

bool isExtension(const void *address) {
    auto at = reinterpret_cast<uintptr_t>(address);
    for (auto [from, to] : faults->systemCode)
        if (from <= at && at < to) return false;
    return true;
}

// What the faults know of the method in the class or one above it.
template <typename Table>
auto find(const Table &table, Class target, SEL selector) {
    auto found = table.end();
    for (; target && found == table.end(); target = class_getSuperclass(target))
        found = table.find({target, sel_getName(selector)});
    return found;
}

BOOL respondsToSelector(id self, SEL _cmd, SEL selector) {
    if (isExtension(__builtin_return_address(0)) && isMethodHidden(object_getClass(self), selector))
        return NO;
    return faults->respondsToSelector(self, _cmd, selector);
}

// Passes on every register that an argument of the methods concerned may come in.
id silent(id self, SEL _cmd, void *a, void *b, void *c, void *d) {
    if (isExtension(__builtin_return_address(0))) return nil;
    IMP next = find(faults->silenced, object_getClass(self), _cmd)->second;
    return reinterpret_cast<id (*)(id, SEL, void *, void *, void *, void *)>(next)(self, _cmd, a, b, c, d);
}

void start() {
    if (faults) return;
    faults = new Faults;
    dl_iterate_phdr(addCode, nullptr);
}

struct Target {
    Class owner = Nil, target = Nil; // the target is the owner or, for class methods, its metaclass
    SEL selector = nullptr;
    explicit operator bool() const { return target && class_getInstanceMethod(target, selector); }
    Key key() const { return {target, sel_getName(selector)}; }
};

Target targetOf(const std::string &name) {
    size_t space = name.find(' ');
    if (space == 0 || space == std::string::npos || name.find(' ', space + 1) != std::string::npos)
        throw std::invalid_argument("a method is named \"Class selector\", not \"" + name + "\"");
    Class owner = findHiddenClass(name.substr(0, space).c_str());
    bool classMethod = name[space + 1] == '+';
    Class target = owner && classMethod ? object_getClass(owner) : owner;
    return {owner, target, sel_registerName(name.c_str() + space + 1 + classMethod)};
}

void checkTypes(Method method, const std::string &name) {
    constexpr unsigned kMostArguments = 6;
    if (std::string_view(method_getTypeEncoding(method)).find_first_of("fd{(") != std::string_view::npos ||
        method_getNumberOfArguments(method) > kMostArguments)
        throw std::invalid_argument(name + " takes or gives what cannot be left out");
}

void silence(Class target, SEL selector) {
    Key key{target, sel_getName(selector)};
    if (faults->silenced.contains(key)) return;
    faults->silenced[key] = replaceMethod(target, selector, reinterpret_cast<IMP>(silent));
}

// Each has had a message afterwards.
std::vector<Class> subclassesOf(Class owner) {
    std::vector<Class> all(static_cast<size_t>(objc_getClassList(nullptr, 0))), result;
    objc_getClassList(all.data(), static_cast<int>(all.size()));
    for (Class candidate : all) {
        Class above = class_getSuperclass(candidate);
        while (above && above != owner) above = class_getSuperclass(above);
        if (above) result.push_back([candidate self]);
    }
    return result;
}

bool overrides(Class target, SEL selector) {
    return class_getInstanceMethod(target, selector) !=
           class_getInstanceMethod(class_getSuperclass(target), selector);
}

} // namespace

bool hideMethod(const std::string &name) {
    start();
    Target method = targetOf(name);
    if (!method) return false;
    faults->hidden.insert(method.key());
    if (faults->respondsToSelector) return true;
    IMP previous = replaceMethod([NSObject class], @selector(respondsToSelector:),
                                 reinterpret_cast<IMP>(respondsToSelector));
    faults->respondsToSelector = reinterpret_cast<BOOL (*)(id, SEL, SEL)>(previous);
    return true;
}

bool silenceMethod(const std::string &name) {
    start();
    Target method = targetOf(name);
    if (!method) return false;
    checkTypes(class_getInstanceMethod(method.target, method.selector), name);
    // Replacing in a class that has had no message yet would change a table that all such classes share.
    [method.owner self];
    silence(method.target, method.selector);
    bool classMethod = method.target != method.owner;
    for (Class kind : subclassesOf(method.owner)) {
        Class target = classMethod ? object_getClass(kind) : kind;
        if (overrides(target, method.selector)) silence(target, method.selector);
    }
    return true;
}

bool isMethodHidden(Class target, SEL selector) {
    return faults && find(faults->hidden, target, selector) != faults->hidden.end();
}

} // namespace sim

extern "C" __attribute__((visibility("default"))) Method class_getInstanceMethod(Class target, SEL selector) {
    static const auto next =
        reinterpret_cast<decltype(&class_getInstanceMethod)>(dlsym(RTLD_NEXT, "class_getInstanceMethod"));
    if (sim::isMethodHidden(target, selector) && sim::isExtension(__builtin_return_address(0)))
        return nullptr;
    return next(target, selector);
}
