// The numbers of the blurring materials that the extension asks for.
#include "Probe/Question.h"

#include <UIKit/UIKit.h>

namespace probe {

namespace {

NSString *const kNumbers[] = {@"style",          @"blurRadius",         @"saturationDeltaFactor",
                              @"colorTintAlpha", @"grayscaleTintLevel", @"grayscaleTintAlpha"};

// As numbers by their names; those that this system's settings do not have are left out.
id settings(NSInteger style) {
    id settings = [objc_getClass("_UIBackdropViewSettings") settingsForStyle:style];
    if (!settings) return absent();
    NSMutableDictionary *result = [NSMutableDictionary dictionary];
    [result setObject:className(settings) forKey:@"class"];
    for (NSString *name : kNumbers)
        if ([settings respondsToSelector:NSSelectorFromString(name)])
            [result setObject:[settings valueForKey:name] forKey:name];
    return result;
}

id dark() { return settings(2030); }

id light() { return settings(2060); }

id passcode() { return settings(3900); }

constexpr Member kSettings = {"_UIBackdropViewSettings", "+settingsForStyle:"};

} // namespace

std::span<const Question> materialQuestions() {
    static const Question all[] = {{"material.2030", dark, {kSettings}},
                                   {"material.2060", light, {kSettings}},
                                   {"material.3900", passcode, {kSettings}}};
    return all;
}

} // namespace probe
