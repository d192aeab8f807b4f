#include "VoiceOver.h"

#include <UIKit/UIAccessibility.h>

namespace sim {

void speakPosted() {}

} // namespace sim

void UIAccessibilityPostNotification(UIAccessibilityNotifications, id) {}
