#include "Gestures.h"

#include "AccessibilityFrames.h"
#include "Elements.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/UIKit+Further.h"
#include "VoiceOver.h"

#include <UIKit/UIAccessibilityElement.h>

#include <functional>

namespace sim {

namespace {

id next(id object) {
    if ([object isKindOfClass:[UIResponder class]]) return [object nextResponder];
    return [object respondsToSelector:@selector(accessibilityContainer)] ? [object accessibilityContainer]
                                                                         : nil;
}

// Whether somebody from the object up takes what is offered.
bool offer(id object, const std::function<bool(id)> &take) {
    constexpr int kLongest = 256;
    for (int i = 0; object && i < kLongest; ++i, object = next(object))
        if (take(object)) return true;
    return false;
}

bool offerFromFocus(const std::vector<id> &elements, const std::function<bool(id)> &take) {
    id start = focusedElement();
    if (!start) start = firstElement(elements);
    if (start) return offer(start, take);
    auto windows = displayedWindows();
    return !windows.empty() && offer(windows.back(), take);
}

UIAccessibilityCustomAction *actionNamed(id element, NSString *name) {
    if (![element respondsToSelector:@selector(accessibilityCustomActions)]) return nil;
    for (UIAccessibilityCustomAction *action in [element accessibilityCustomActions])
        if ([[action name] isEqualToString:name]) return action;
    return nil;
}

} // namespace

std::optional<CGPoint> activate(id element) {
    moveFocus(element);
    if ([element accessibilityActivate]) return std::nullopt;
    return touchPoint([element accessibilityActivationPoint]);
}

NSArray *actionNames(id element) {
    if (![element respondsToSelector:@selector(accessibilityCustomActions)]) return [NSArray array];
    NSMutableArray *names = [NSMutableArray array];
    for (UIAccessibilityCustomAction *action in [element accessibilityCustomActions])
        [names addObject:[action name] ? [action name] : @""];
    return names;
}

bool perform(id element, NSString *name) {
    moveFocus(element);
    UIAccessibilityCustomAction *action = actionNamed(element, name);
    id target = [action target];
    SEL selector = [action selector];
    if (!target || ![target respondsToSelector:selector]) return false;
    [[action retain] autorelease];
    auto send = reinterpret_cast<BOOL (*)(id, SEL, id)>([target methodForSelector:selector]);
    return send(target, selector, action);
}

bool escape() {
    return offerFromFocus(accessibleElements(),
                          [](id object) { return [object accessibilityPerformEscape]; });
}

bool scrollPage(UIAccessibilityScrollDirection direction) {
    auto elements = accessibleElements();
    auto take = [=](id object) -> bool { return [object accessibilityScroll:direction]; };
    if (offerFromFocus(elements, take)) return true;
    for (id element : elements)
        if (offer(element, take)) return true;
    return false;
}

} // namespace sim
