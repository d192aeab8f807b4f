#include "Tweak/Core/Accessibility/Speech.h"

#include "Tweak/Core/Accessibility/Aids.h"

#include <UIKit/UIAccessibility.h>

namespace pendix {

namespace {

void post(UIAccessibilityNotifications notification, id argument) {
    if (voiceOverRuns()) UIAccessibilityPostNotification(notification, argument);
}

} // namespace

void announce(NSString *key, NSString *(*translate)(NSString *)) {
    if (voiceOverRuns()) post(UIAccessibilityAnnouncementNotification, translate(key));
}

void announcePage(NSString *text) { post(UIAccessibilityPageScrolledNotification, text); }

void readInOrder(UIView *container, NSArray *elements) {
    if ([container respondsToSelector:@selector(setAccessibilityElements:)])
        container.accessibilityElements = elements;
}

void focusOnScreen(id element) { post(UIAccessibilityScreenChangedNotification, element); }
void focusOnChange(id element) { post(UIAccessibilityLayoutChangedNotification, element); }

} // namespace pendix
