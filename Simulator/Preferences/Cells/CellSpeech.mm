// What the rows of Settings say.
#include "PSTableCell+Further.h"
#include "UIKit/Accessibility/DefaultSpeech.h"
#include "UIKit/Accessibility/GivenProperties.h"
#include "UIKit/UIKit+Further.h"

#include <Preferences/PSTableCell.h>

@implementation PSTableCell (Speech)
- (sim::Speech)defaultSpeech {
    sim::Speech speech = [super defaultSpeech];
    if ([self selectionStyle] != UITableViewCellSelectionStyleNone)
        speech.traits |= UIAccessibilityTraitButton;
    if (![self cellEnabled]) speech.traits |= UIAccessibilityTraitNotEnabled;
    return speech;
}
@end

// The row and its switch are one, and a double tap turns the switch.
@implementation PSSwitchTableCell (Speech)
- (sim::Speech)defaultSpeech {
    sim::Speech speech = [super defaultSpeech];
    speech.element = speech.label != nil;
    speech.value = [[self control] accessibilityValue];
    speech.traits |= [[self control] accessibilityTraits];
    return speech;
}
- (CGPoint)accessibilityActivationPoint {
    auto given = sim::givenTo(self).activationPoint;
    return given ? *given : [[self control] accessibilityActivationPoint];
}
@end
