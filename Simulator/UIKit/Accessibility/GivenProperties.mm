#include "GivenProperties.h"

#include "Runtime/Process/Events.hpp"

#include <UIKit/UIAccessibilityElement.h>
#include <UIKit/UIBarButtonItem.h>
#include <UIKit/UIResponder.h>

#include <string>
#include <unordered_map>

namespace sim {

namespace {

// Looked up, never walked through. The process's end finds objects still alive.
auto &table() {
    static auto &given = *new std::unordered_map<id, GivenProperties>;
    return given;
}

bool isForgottenInTime(id object) {
    for (Class kind : {[UIResponder class], [UIAccessibilityElement class], [UIBarButtonItem class]})
        if ([object isKindOfClass:kind]) return true;
    return false;
}

} // namespace

const GivenProperties &givenTo(id object) {
    static const GivenProperties nothing;
    auto found = table().find(object);
    return found == table().end() ? nothing : found->second;
}

GivenProperties &giveTo(id object) {
    auto [entry, isNew] = table().try_emplace(object);
    if (isNew && !isForgottenInTime(object))
        recordWarning(std::string("the accessibility of a ") + object_getClassName(object) +
                      " is kept beyond its life");
    return entry->second;
}

void forgetGiven(id object) {
    auto found = table().find(object);
    if (found == table().end()) return;
    GivenProperties given = found->second;
    table().erase(found);
    for (id each : {(id)given.label, (id)given.hint, (id)given.value, (id)given.language, (id)given.elements,
                    (id)given.actions})
        [each release];
}

} // namespace sim
