#include "Gestures.h"

#include "AccessibilityFrames.h"
#include "Elements.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/UIKit+Further.h"
#include "VoiceOver.h"

#include <UIKit/UIAccessibilityElement.h>

#include <algorithm>
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

// How far the part from `start` on lies outside what is seen from `from` on: negative before it.
CGFloat outside(CGFloat start, CGFloat length, CGFloat from, CGFloat room) {
    if (start < from || length > room) return start - from;
    return std::max<CGFloat>(start + length - from - room, 0);
}

UIAccessibilityCustomAction *actionNamed(id element, NSString *name) {
    if (![element respondsToSelector:@selector(accessibilityCustomActions)]) return nil;
    for (UIAccessibilityCustomAction *action in [element accessibilityCustomActions])
        if ([[action name] isEqualToString:name]) return action;
    return nil;
}

} // namespace

void reveal(id element) {
    UIView *view = viewOfElement(element);
    if (view != element) return;
    for (UIView *holder = [view superview]; holder; holder = [holder superview]) {
        if (![holder isKindOfClass:[UIScrollView class]]) continue;
        auto *scroll = static_cast<UIScrollView *>(holder);
        if ([scroll isPagingEnabled] || ![scroll isScrollEnabled]) continue;
        CGRect seen = unobscuredBounds(scroll), whole = [view convertRect:[view bounds] toView:scroll];
        CGPoint offset = [scroll contentOffset];
        offset.x += outside(whole.origin.x, whole.size.width, seen.origin.x, seen.size.width);
        offset.y += outside(whole.origin.y, whole.size.height, seen.origin.y, seen.size.height);
        if (CGPointEqualToPoint(offset, [scroll contentOffset])) continue;
        [scroll setContentOffset:offset animated:NO];
        [scroll layoutIfNeeded];
    }
}

std::optional<CGPoint> activate(id element) {
    reveal(element);
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
    reveal(element);
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
