#include "AidSettings.h"

#include "Runtime/Objc/Versions.hpp"
#include "Runtime/Process/SymbolLookup.hpp"
#include "UIKit/Tables/TableState.h"

#include <UIKit/UIAccessibility.h>
#include <UIKit/UIContentSizeCategory.h>

#include <utility>

NSString *const UIAccessibilityVoiceOverStatusChanged = @"UIAccessibilityVoiceOverStatusChanged";
NSString *const UIAccessibilityReduceMotionStatusDidChangeNotification =
    @"UIAccessibilityReduceMotionStatusDidChangeNotification";
NSString *const UIAccessibilityReduceTransparencyStatusDidChangeNotification =
    @"UIAccessibilityReduceTransparencyStatusDidChangeNotification";
NSString *const UIAccessibilityDarkerSystemColorsStatusDidChangeNotification =
    @"UIAccessibilityDarkerSystemColorsStatusDidChangeNotification";
NSString *const UIAccessibilityBoldTextStatusDidChangeNotification =
    @"UIAccessibilityBoldTextStatusDidChangeNotification";

namespace {

const sim::SymbolVersions kSymbols[] = {
    {"UIAccessibilityIsReduceMotionEnabled", sim::kFirst8, sim::kNewest},
    {"UIAccessibilityIsReduceTransparencyEnabled", sim::kFirst8, sim::kNewest},
    {"UIAccessibilityDarkerSystemColorsEnabled", sim::kFirst8, sim::kNewest},
    {"UIAccessibilityIsBoldTextEnabled", sim::kFirst8, sim::kNewest},
    {"UIAccessibilityReduceMotionStatusDidChangeNotification", sim::kFirst8, sim::kNewest},
    {"UIAccessibilityReduceTransparencyStatusDidChangeNotification", sim::kFirst8, sim::kNewest},
    {"UIAccessibilityDarkerSystemColorsStatusDidChangeNotification", sim::kFirst8, sim::kNewest},
    {"UIAccessibilityBoldTextStatusDidChangeNotification", sim::kFirst8, sim::kNewest},
};
const bool kRegistered = (sim::registerSymbolVersions(kSymbols), true);

sim::Aids current;

void post(NSString *name) { [[NSNotificationCenter defaultCenter] postNotificationName:name object:nil]; }

void postTextSize() {
    UIApplication *application = [UIApplication sharedApplication];
    NSDictionary *information = [NSDictionary dictionaryWithObject:[application preferredContentSizeCategory]
                                                            forKey:UIContentSizeCategoryNewValueKey];
    [[NSNotificationCenter defaultCenter] postNotificationName:UIContentSizeCategoryDidChangeNotification
                                                        object:application
                                                      userInfo:information];
    sim::remakeTables();
}

} // namespace

namespace sim {

const Aids &aids() { return current; }

void setAids(const Aids &next) {
    Aids before = std::exchange(current, next);
    if (![UIApplication sharedApplication]) return;
    const std::pair<bool Aids::*, NSString *> switches[] = {
        {&Aids::voiceOver, UIAccessibilityVoiceOverStatusChanged},
        {&Aids::reduceMotion, UIAccessibilityReduceMotionStatusDidChangeNotification},
        {&Aids::reduceTransparency, UIAccessibilityReduceTransparencyStatusDidChangeNotification},
        {&Aids::darkerColors, UIAccessibilityDarkerSystemColorsStatusDidChangeNotification},
        {&Aids::boldText, UIAccessibilityBoldTextStatusDidChangeNotification}};
    for (const auto &[aid, name] : switches)
        if (before.*aid != next.*aid) post(name);
    if (before.textSize != next.textSize) postTextSize();
}

} // namespace sim

BOOL UIAccessibilityIsVoiceOverRunning() { return current.voiceOver; }
BOOL UIAccessibilityIsReduceMotionEnabled() { return current.reduceMotion; }
BOOL UIAccessibilityIsReduceTransparencyEnabled() { return current.reduceTransparency; }
BOOL UIAccessibilityDarkerSystemColorsEnabled() { return current.darkerColors; }
BOOL UIAccessibilityIsBoldTextEnabled() { return current.boldText; }
