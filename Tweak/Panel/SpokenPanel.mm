#include "Tweak/Panel/SpokenPanel.h"

#include "Tweak/Core/Accessibility/Aids.h"
#include "Tweak/Core/Accessibility/Speech.h"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Panel/ItemState.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/Panel/PanelBuild.h"
#include "Tweak/Panel/Replacements.h"

namespace pendix {

namespace {

UIView *indicator() {
    for (UIView *view in [Spring statusBarItemViews])
        if ([Spring isPendix:view]) return view;
    return nil;
}

// The question's text, of its copies the one that is seen.
UIView *question() {
    for (UIView *view in contentView().subviews)
        if (view.tag == tags::promptText && !view.hidden && !view.accessibilityElementsHidden) return view;
    return nil;
}

id firstElement() {
    if (UIView *title = spokenFaceTitle()) return title;
    if (UIView *text = question()) return text;
    return [strip() accessibilityElementCount] > 0 ? [strip() accessibilityElementAtIndex:0] : nil;
}

} // namespace

void takeOverSpeech(BOOL shown) {
    window.accessibilityViewIsModal = shown;
    window.accessibilityElementsHidden = !shown;
    if (!shown && voiceOverRuns()) focusOnScreen(indicator());
}

void focusOnPanel() {
    if (isShow && voiceOverRuns()) focusOnChange(firstElement());
}

void focusOnOpenPanel() {
    if (isShow && voiceOverRuns()) focusOnScreen(firstElement());
}

void focusNear(CGFloat x) {
    if (!isShow || !voiceOverRuns()) return;
    id near = nil;
    for (UIView *item in itemViews()) {
        if (itemState::isClosing(item)) return;
        if (!near || item.frame.origin.x <= x) near = elementOf(item);
    }
    [strip() accessibilityElementCount];
    focusOnChange(near ? near : firstElement());
}

int applicationsWaiting() { return static_cast<int>(listedApplications(isOn(keys::runningMode)).size()); }

BOOL hooked::performEscape(UIWindow *self, SEL _cmd) {
    if (self != window || !isShow) return original::performEscape(self, _cmd);
    [Spring dismisPendixUI];
    return YES;
}

} // namespace pendix
