// What an object was told of its accessibility, beside what its class says.
#pragma once

#include <UIKit/UIAccessibility.h>

#include <optional>

namespace sim {

// Texts and lists are retained; nil is not set.
struct GivenProperties {
    std::optional<BOOL> element, elementsHidden, modal, groups;
    std::optional<UIAccessibilityTraits> traits;
    std::optional<CGRect> frame;
    std::optional<CGPoint> activationPoint;
    NSString *label = nil, *hint = nil, *value = nil, *language = nil;
    NSArray *elements = nil, *actions = nil;
};

// What was set on the object; nothing by default.
const GivenProperties &givenTo(id object);
// The same, to be set. Kept until the object is forgotten: of objects other than responders, bar items and
// accessibility elements, which nobody forgets, with a warning.
GivenProperties &giveTo(id object);
// For those classes, when an object goes.
void forgetGiven(id object);

} // namespace sim
