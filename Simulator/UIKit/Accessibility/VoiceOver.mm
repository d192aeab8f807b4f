#include "VoiceOver.h"

#include "AidSettings.h"
#include "Elements.h"
#include "Runtime/Process/Events.hpp"

#include <UIKit/UIAccessibility.h>
#include <UIKit/UIView.h>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace sim {

namespace {

struct Focus {
    id element = nil; // not retained
    CGPoint place = {};
};
Focus focus;

struct Posted {
    UIAccessibilityNotifications notification;
    id argument; // retained
};
std::vector<Posted> posted;

CGPoint placeOf(id element) {
    CGRect frame = [element accessibilityFrame];
    return {CGRectGetMidX(frame), CGRectGetMidY(frame)};
}

id nearestTo(CGPoint place, const std::vector<id> &elements) {
    auto distance = [&](id element) {
        CGPoint middle = placeOf(element);
        return std::hypot(middle.x - place.x, middle.y - place.y);
    };
    return *std::ranges::min_element(elements, {}, distance);
}

void say(const char *what, const std::string &text) {
    if (!text.empty()) recordEvent("spoken", Object{{"what", what}, {"text", text}});
}

// The element that a view stands for: itself, or the first of those that it holds.
id elementFor(id object, const std::vector<id> &elements) {
    if (std::ranges::count(elements, object)) return object;
    for (id element : elements)
        for (UIView *view = viewOfElement(element); view; view = [view superview])
            if (view == object) return element;
    return nil;
}

void changeTo(const char *what, id argument, bool first) {
    if ([argument isKindOfClass:[NSString class]]) return say(what, [argument UTF8String]);
    auto elements = accessibleElements();
    id next = argument ? elementFor(argument, elements) : nil;
    if (!next && first) next = firstElement(elements);
    if (!next) return;
    moveFocus(next);
    say(what, utterance(next));
}

void carryOut(const Posted &each) {
    if (each.notification == UIAccessibilityScreenChangedNotification)
        return changeTo("screen", each.argument, true);
    if (each.notification == UIAccessibilityLayoutChangedNotification)
        return changeTo("layout", each.argument, false);
    bool isText = [each.argument isKindOfClass:[NSString class]];
    if (isText) say("announcement", [each.argument UTF8String]);
}

} // namespace

void moveFocus(id element) {
    if (!aids().voiceOver) return;
    id before = std::exchange(focus.element, element);
    if (element) focus.place = placeOf(element);
    if (before == element) return;
    [before accessibilityElementDidLoseFocus];
    [element accessibilityElementDidBecomeFocused];
}

id focusedElement() {
    if (!aids().voiceOver) return nil;
    auto elements = accessibleElements();
    if (elements.empty()) {
        moveFocus(nil);
    } else if (!std::ranges::count(elements, focus.element)) {
        bool hadPlace = focus.place.x != 0 || focus.place.y != 0;
        moveFocus(hadPlace ? nearestTo(focus.place, elements) : firstElement(elements));
    }
    return focus.element;
}

void speakPosted() {
    // What is said may lead to more.
    auto now = std::exchange(posted, {});
    for (const auto &each : now) {
        if (aids().voiceOver) carryOut(each);
        [each.argument release];
    }
    if (!aids().voiceOver) focus = {};
}

std::string utterance(id element) {
    std::string text;
    for (NSString *part : {[element accessibilityLabel], [element accessibilityValue]})
        if ([part length]) text += (text.empty() ? "" : ", ") + std::string([part UTF8String]);
    return text;
}

void forgetFocus(id element) {
    if (focus.element == element) focus.element = nil;
}

} // namespace sim

void UIAccessibilityPostNotification(UIAccessibilityNotifications notification, id argument) {
    if (sim::aids().voiceOver) sim::posted.push_back({notification, [argument retain]});
}

@implementation NSObject (UIAccessibilityFocus)

- (void)accessibilityElementDidBecomeFocused {
}
- (void)accessibilityElementDidLoseFocus {
}
- (BOOL)accessibilityElementIsFocused {
    return sim::aids().voiceOver && self == sim::focus.element;
}

@end
