#include "Requests.h"
#include "Screen.h"
#include "SpokenElements.h"
#include "UIKit/Accessibility/AidSettings.h"
#include "UIKit/Accessibility/Elements.h"
#include "UIKit/Accessibility/Gestures.h"
#include "UIKit/Accessibility/VoiceOver.h"
#include "UIKit/CoreGraphics/CGGeometry+Further.h"
#include "ViewSearch.h"

#include <map>
#include <string>

namespace sim {

namespace {

// {"window": name}, which may be absent.
Value spoken(const Value &arguments) {
    auto elements = accessibleElements();
    if (arguments.has("window"))
        std::erase_if(elements, [&](id element) {
            UIWindow *window = [viewOfElement(element) window];
            return !window || windowName(window) != arguments["window"].string();
        });
    return spokenElements(elements);
}

Value focus(const Value &) {
    id element = focusedElement();
    return spokenElements(element ? std::vector<id>{element} : std::vector<id>{});
}

id elementIn(const Value &arguments) {
    for (id element : accessibleElements())
        if (elementNumber(element) == arguments["element"].integer()) return element;
    throw BadRequest("the element is not to be found on the screen any more");
}

// {"element": number}. Gives the point that a finger is to tap, {"x", "y"}; null when none is.
Value activate(const Value &arguments) {
    auto point = sim::activate(elementIn(arguments));
    if (!point) return {};
    CGRect upright = toUpright({*point, CGSizeZero});
    return Object{{"x", upright.origin.x}, {"y", upright.origin.y}};
}

// {"element": number, "action": name}. Without such an action the answer is the list of those that there are.
Value act(const Value &arguments) {
    id element = elementIn(arguments);
    Array names;
    for (NSString *name in actionNames(element)) {
        if (arguments["action"].string() == [name UTF8String]) return perform(element, name);
        names.emplace_back([name UTF8String]);
    }
    return names;
}

// {"element": number, "up": boolean}
Value adjust(const Value &arguments) {
    id element = elementIn(arguments);
    if (!([element accessibilityTraits] & UIAccessibilityTraitAdjustable))
        throw BadRequest("the element is not adjustable");
    reveal(element);
    moveFocus(element);
    if (arguments["up"].boolean()) {
        [element accessibilityIncrement];
    } else {
        [element accessibilityDecrement];
    }
    return {};
}

Value escape(const Value &) { return sim::escape(); }

// {"direction": "left", "right", "up" or "down"}
Value scrollPage(const Value &arguments) {
    static const std::map<std::string, UIAccessibilityScrollDirection> directions = {
        {"left", UIAccessibilityScrollDirectionLeft},
        {"right", UIAccessibilityScrollDirectionRight},
        {"up", UIAccessibilityScrollDirectionUp},
        {"down", UIAccessibilityScrollDirectionDown}};
    return sim::scrollPage(directions.at(arguments["direction"].string()));
}

// All of them, by the names of eachField().
Value aids(const Value &arguments) {
    Aids next;
    struct {
        const Value &values;
        void operator()(const char *name, bool &aid) const { aid = values[name].boolean(); }
        void operator()(const char *name, std::string &aid) const { aid = values[name].string(); }
    } read{arguments};
    eachField(next, read);
    setAids(next);
    return {};
}

} // namespace

std::span<const Request> speakingRequests() {
    static const Request requests[] = {
        {"spoken", spoken}, {"focus", focus},   {"activate", activate},      {"act", act},
        {"adjust", adjust}, {"escape", escape}, {"scroll_page", scrollPage}, {"aids", aids}};
    return requests;
}

} // namespace sim
