// What icons say: their names, and what is new.
#include "Icons.h"
#include "UIKit/Accessibility/DefaultSpeech.h"
#include "UIKit/Accessibility/SpokenTexts.hpp"

namespace {

NSString *newItems(SBIcon *icon) {
    NSString *badge = sim::badgeText(icon);
    if (!badge) return nil;
    const auto &texts = sim::spokenTexts();
    std::string format = [icon badgeValue] == 1 ? texts.newItem : texts.newItems;
    format.replace(format.find("%s"), 2, [badge UTF8String]);
    return [NSString stringWithUTF8String:format.c_str()];
}

} // namespace

@implementation SBIconView (Speech)
- (sim::Speech)defaultSpeech {
    return {.element = YES, .label = [[self icon] displayName], .value = newItems([self icon])};
}
@end
