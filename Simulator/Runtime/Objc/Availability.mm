#import <Foundation/Foundation.h>

#include "Availability.hpp"

#include "HiddenClasses.hpp"
#include "Methods.hpp"

#include <stdexcept>
#include <string>
#include <vector>

namespace sim {

namespace {

template <typename Row>
std::vector<std::span<const Row>> &tables() {
    static std::vector<std::span<const Row>> registered;
    return registered;
}

template <typename Row>
bool covers(const Row &row, Version version) {
    return row.first <= version && version <= row.last;
}

// The class itself has the method; one that it inherits may be overridden.
bool hasOwn(Class target, SEL selector) {
    Method method = class_getInstanceMethod(target, selector);
    return method && method != class_getInstanceMethod(class_getSuperclass(target), selector);
}

void addMethod(const VersionedMethod &row) {
    bool classMethod = row.selector[0] == '+';
    Class target = findHiddenClass(row.className);
    if (target && classMethod) target = object_getClass(target);
    if (!target) throw std::logic_error(std::string("methods of no class: ") + row.className);
    SEL selector = sel_registerName(row.selector + classMethod);
    if (hasOwn(target, selector))
        throw std::logic_error(std::string(row.className) + " has " + row.selector + " already");
    finishConstruction(target);
    class_addMethod(target, selector, row.function, row.types);
}

} // namespace

void registerVersionedMethods(std::span<const VersionedMethod> rows) {
    tables<VersionedMethod>().push_back(rows);
}

void registerClassVersions(std::span<const ClassVersions> rows) { tables<ClassVersions>().push_back(rows); }

void applyAvailability(Version version) {
    for (auto rows : tables<VersionedMethod>())
        for (const auto &row : rows)
            if (covers(row, version)) addMethod(row);
    for (auto rows : tables<ClassVersions>())
        for (const auto &row : rows)
            if (!covers(row, version)) hideClass(row.name);
}

} // namespace sim
