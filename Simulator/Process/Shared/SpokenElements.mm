#include "SpokenElements.h"

#include "Screen.h"
#include "UIKit/Accessibility/AccessibilityFrames.h"
#include "UIKit/Accessibility/Elements.h"
#include "UIKit/Accessibility/Gestures.h"
#include "ViewAnimations.h"
#include "ViewSnapshot.h"

#include <utility>

namespace sim {

namespace {

Value text(NSString *string) { return [string length] ? Value([string UTF8String]) : Value(); }

Array traitNames(UIAccessibilityTraits traits) {
    const std::pair<UIAccessibilityTraits, const char *> names[] = {
        {UIAccessibilityTraitButton, "button"},
        {UIAccessibilityTraitLink, "link"},
        {UIAccessibilityTraitHeader, "header"},
        {UIAccessibilityTraitSearchField, "search_field"},
        {UIAccessibilityTraitImage, "image"},
        {UIAccessibilityTraitSelected, "selected"},
        {UIAccessibilityTraitPlaysSound, "plays_sound"},
        {UIAccessibilityTraitKeyboardKey, "keyboard_key"},
        {UIAccessibilityTraitStaticText, "static_text"},
        {UIAccessibilityTraitSummaryElement, "summary"},
        {UIAccessibilityTraitNotEnabled, "not_enabled"},
        {UIAccessibilityTraitUpdatesFrequently, "updates_frequently"},
        {UIAccessibilityTraitStartsMediaSession, "starts_media"},
        {UIAccessibilityTraitAdjustable, "adjustable"},
        {UIAccessibilityTraitAllowsDirectInteraction, "direct_interaction"},
        {UIAccessibilityTraitCausesPageTurn, "causes_page_turn"}};
    Array result;
    for (const auto &[trait, name] : names)
        if (traits & trait) result.emplace_back(name);
    return result;
}

Value screenOf(id element) {
    CGRect frame = toUpright(portraitRect([element accessibilityFrame]));
    return Object{{"x", rounded(frame.origin.x)},
                  {"y", rounded(frame.origin.y)},
                  {"w", rounded(frame.size.width)},
                  {"h", rounded(frame.size.height)}};
}

Value fields(id element) {
    Array actions;
    for (NSString *name in actionNames(element)) actions.emplace_back([name UTF8String]);
    return Object{{"number", elementNumber(element)},
                  {"held", viewOfElement(element) != nil},
                  {"label", text([element accessibilityLabel])},
                  {"value", text([element accessibilityValue])},
                  {"hint", text([element accessibilityHint])},
                  {"traits", traitNames([element accessibilityTraits])},
                  {"actions", actions},
                  {"screen", screenOf(element)}};
}

} // namespace

Value spokenElements(const std::vector<id> &elements) {
    Array list;
    std::vector<UIView *> views;
    for (id element : elements) {
        list.push_back(fields(element));
        if (UIView *view = viewOfElement(element)) views.push_back(view);
    }
    Value answer = snapshot(views);
    answer.set("elements", list);
    return answer;
}

} // namespace sim
