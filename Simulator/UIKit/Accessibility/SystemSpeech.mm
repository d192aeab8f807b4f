// What the parts of the system's own screens say: rows, bars, alerts and keys.
#include "DefaultSpeech.h"
#include "SpokenTexts.hpp"
#include "UIKit/Alerts/AlertPanel.h"
#include "UIKit/Input/Keyboard.h"
#include "UIKit/Navigation/NavigationState.h"
#include "UIKit/StatusBar/StatusBarData.hpp"
#include "UIKit/StatusBar/StockItems.h"
#include "UIKit/Tables/TableState.h"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"

#include <cstdio>

namespace {

NSString *text(const std::string &string) { return [NSString stringWithUTF8String:string.c_str()]; }

NSString *numbered(const char *format, int number) {
    char buffer[64];
    snprintf(buffer, sizeof buffer, format, number);
    return text(buffer);
}

struct Contents {
    NSMutableArray *texts = [NSMutableArray array];
    bool others = false; // elements that are more than texts
};

void look(UIView *view, Contents &contents) {
    if (!view || [view isHidden] || [view accessibilityElementsHidden]) return;
    if (![view isAccessibilityElement]) {
        for (UIView *subview : sim::subviews(view)) look(subview, contents);
    } else if (![view isKindOfClass:[UILabel class]]) {
        contents.others = true;
    } else if (NSString *label = [view accessibilityLabel]) {
        [contents.texts addObject:label];
    }
}

} // namespace

// One element that says all its texts, unless there is more in it than texts.
@implementation UITableViewCell (Speech)
- (sim::Speech)defaultSpeech {
    Contents contents;
    look([self contentView], contents);
    UIAccessibilityTraits traits = UIAccessibilityTraitNone;
    if ([self isSelected] || [self accessoryType] == UITableViewCellAccessoryCheckmark)
        traits |= UIAccessibilityTraitSelected;
    NSString *label = [contents.texts count] ? [contents.texts componentsJoinedByString:@", "] : nil;
    look([self accessoryView], contents);
    return {.element = label && !contents.others, .label = label, .traits = traits};
}
@end

@implementation UITableViewHeaderFooterView (Speech)
- (sim::Speech)defaultSpeech {
    return {.element = YES,
            .label = [self text],
            .traits = [self isFooter] ? UIAccessibilityTraitStaticText : UIAccessibilityTraitHeader};
}
@end

@implementation UINavigationItemView (Speech)
- (sim::Speech)defaultSpeech {
    for (UIView *view : sim::subviews(self))
        if ([view isKindOfClass:[UILabel class]])
            return {.element = YES,
                    .label = [static_cast<UILabel *>(view) text],
                    .traits = UIAccessibilityTraitHeader};
    return {};
}
@end

@implementation UINavigationItemButtonView (Speech)
- (sim::Speech)defaultSpeech {
    return {.element = YES, .label = [self title], .traits = UIAccessibilityTraitButton};
}
@end

@implementation AlertWindow (Speech)
- (sim::Speech)defaultSpeech {
    return {.modal = YES};
}
- (BOOL)accessibilityPerformEscape {
    UIAlertView *alert = sim::topmostAlert();
    if ([alert cancelButtonIndex] < 0) return NO;
    [alert buttonWasPressed:[alert cancelButtonIndex]];
    return YES;
}
@end

@implementation UINavigationController (Speech)
- (BOOL)accessibilityPerformEscape {
    return [self popViewControllerAnimated:YES] != nil;
}
@end

@implementation UIKeyboardKey (Speech)
- (sim::Speech)defaultSpeech {
    bool deletes = [[self title] length] == 0;
    return {.element = YES,
            .label = deletes ? text(sim::spokenTexts().deleteKey) : [self title],
            .traits = UIAccessibilityTraitKeyboardKey};
}
@end

@implementation UIStatusBarSignalStrengthItemView (Speech)
- (sim::Speech)defaultSpeech {
    return {.element = YES, .label = numbered(sim::spokenTexts().signal, sim::statusBarData().signalBars)};
}
@end

@implementation UIStatusBarServiceItemView (Speech)
- (sim::Speech)defaultSpeech {
    return {.element = YES, .label = text(sim::statusBarData().carrier)};
}
@end

@implementation UIStatusBarDataNetworkItemView (Speech)
- (sim::Speech)defaultSpeech {
    return {.element = YES, .label = numbered(sim::spokenTexts().wifi, sim::statusBarData().wifiBars)};
}
@end

@implementation UIStatusBarTimeItemView (Speech)
- (sim::Speech)defaultSpeech {
    return {.element = YES, .label = text(sim::statusBarTime())};
}
@end

// The number beside it says no more.
@implementation UIStatusBarBatteryItemView (Speech)
- (sim::Speech)defaultSpeech {
    return {.element = YES, .label = numbered(sim::spokenTexts().battery, sim::statusBarData().batteryLevel)};
}
@end
