// The numbers of traits and notifications.
#include <UIKit/UIAccessibility.h>

const UIAccessibilityTraits UIAccessibilityTraitNone = 0;
const UIAccessibilityTraits UIAccessibilityTraitButton = 1 << 0;
const UIAccessibilityTraits UIAccessibilityTraitLink = 1 << 1;
const UIAccessibilityTraits UIAccessibilityTraitImage = 1 << 2;
const UIAccessibilityTraits UIAccessibilityTraitSelected = 1 << 3;
const UIAccessibilityTraits UIAccessibilityTraitPlaysSound = 1 << 4;
const UIAccessibilityTraits UIAccessibilityTraitKeyboardKey = 1 << 5;
const UIAccessibilityTraits UIAccessibilityTraitStaticText = 1 << 6;
const UIAccessibilityTraits UIAccessibilityTraitSummaryElement = 1 << 7;
const UIAccessibilityTraits UIAccessibilityTraitNotEnabled = 1 << 8;
const UIAccessibilityTraits UIAccessibilityTraitUpdatesFrequently = 1 << 9;
const UIAccessibilityTraits UIAccessibilityTraitSearchField = 1 << 10;
const UIAccessibilityTraits UIAccessibilityTraitStartsMediaSession = 1 << 11;
const UIAccessibilityTraits UIAccessibilityTraitAdjustable = 1 << 12;
const UIAccessibilityTraits UIAccessibilityTraitAllowsDirectInteraction = 1 << 13;
const UIAccessibilityTraits UIAccessibilityTraitCausesPageTurn = 1 << 14;
const UIAccessibilityTraits UIAccessibilityTraitHeader = 1 << 16;

const UIAccessibilityNotifications UIAccessibilityScreenChangedNotification = 1000;
const UIAccessibilityNotifications UIAccessibilityLayoutChangedNotification = 1001;
const UIAccessibilityNotifications UIAccessibilityAnnouncementNotification = 1008;
const UIAccessibilityNotifications UIAccessibilityPageScrolledNotification = 1009;
