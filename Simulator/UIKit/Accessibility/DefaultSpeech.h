// What an object says of itself unless it was told otherwise.
#pragma once

#include <UIKit/UIAccessibility.h>

namespace sim {

// Nothing said: texts nil, no traits, no element.
struct Speech {
    BOOL element = NO;
    NSString *label = nil, *value = nil;
    UIAccessibilityTraits traits = 0;
    BOOL modal = NO;
};

} // namespace sim

// Classes of the system that have something to say override it.
@interface NSObject (DefaultSpeech)
- (sim::Speech)defaultSpeech;
@end
