// An item as it is spoken.
#include "Tweak/Panel/SpokenPanel.h"

#include "Tweak/Core/Accessibility/Wording.h"
#include "Tweak/Core/AnimationDuration.h"
#include "Tweak/Core/Applications.h"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Core/Translator.h"
#include "Tweak/Panel/ItemState.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/Panel/Question.h"
#include "Tweak/Panel/SpringBoard+Gestures.h"

#include <UIKit/UIAccessibilityElement.h>

// What the rotor's actions of an item do. The item keeps it.
@interface itemActions : NSObject {
@public
    UIView *item; // not retained
}
- (BOOL)takeOff;
- (BOOL)takeAllOff;
@end

@implementation itemActions

- (BOOL)takeOff {
    if (!pendix::isShow) return NO;
    [pendix::Spring closeIcon:item];
    return YES;
}

- (BOOL)takeAllOff {
    constexpr float kGrowing = 0.4f; // seconds
    if (!pendix::isShow) return NO;
    if (pendix::isEditing) pendix::endEditing();
    pendix::ask(pendix::Spring, pendix::animationDuration(kGrowing));
    return YES;
}

@end

namespace pendix {

namespace {

BOOL isText(id value) { return [value isKindOfClass:[NSString class]] && [value length] != 0; }

// An application without a name is known by the last part of its identifier.
NSString *nameOf(NSString *identifier) {
    id name = [applicationOf(identifier) displayName];
    return isText(name) ? name : [[identifier componentsSeparatedByString:@"."] lastObject];
}

// A count may be a text, which the badge shows as it is.
NSString *countOf(NSString *identifier) {
    SBApplication *application = applicationOf(identifier);
    id badge = [application respondsToSelector:@selector(badgeNumberOrString)]
                   ? [application badgeNumberOrString]
                   : nil;
    if (isText(badge) && [badge intValue] == 0) return badge;
    const NSInteger count = [[iconViewOf(identifier) icon] badgeValue];
    if (count == 0) return nil;
    return count == 1 ? Translator(@"spoken_one_new") : filledIn(Translator(@"spoken_new"), grouped(count));
}

NSString *stateOf(NSString *identifier, BOOL running) {
    NSString *count = countOf(identifier), *runs = running ? Translator(@"spoken_running") : nil;
    return count && runs ? [NSString stringWithFormat:@"%@, %@", count, runs] : count ? count : runs;
}

// nil where there are none.
NSArray *actionsOf(UIView *item, BOOL running) {
    Class action = objc_getClass("UIAccessibilityCustomAction");
    if (!action) return nil;
    itemActions *target = [[itemActions new] autorelease];
    target->item = item;
    itemState::keepActions(item, target);
    struct {
        NSString *name;
        SEL selector;
    } const kinds[] = {{running ? @"spoken_quit" : @"spoken_clear", @selector(takeOff)},
                       {running ? @"spoken_quit_all" : @"spoken_clear_all", @selector(takeAllOff)}};
    NSMutableArray *actions = [NSMutableArray array];
    for (const auto &kind : kinds)
        [actions addObject:[[[action alloc] initWithName:Translator(kind.name)
                                                  target:target
                                                selector:kind.selector] autorelease]];
    return actions;
}

} // namespace

UIView *elementOf(UIView *item) { return isEditing ? subviewWithTag(item, tags::closeMark) : item; }

void describe(UIView *item) {
    UIView *element = elementOf(item);
    NSString *identifier = item.layer.name, *name = nameOf(identifier);
    const BOOL running = isOn(keys::runningMode);
    const BOOL hasActions = [element respondsToSelector:@selector(setAccessibilityCustomActions:)];
    element.isAccessibilityElement = YES;
    element.accessibilityTraits = UIAccessibilityTraitButton;
    element.accessibilityValue = stateOf(identifier, running);
    if (isEditing) {
        NSString *verb = Translator(running ? @"spoken_quit" : @"spoken_clear");
        element.accessibilityLabel = [NSString stringWithFormat:@"%@ %@", verb, name];
    } else {
        element.accessibilityLabel = name;
        element.accessibilityHint = Translator(hasActions ? @"spoken_open" : @"spoken_open_or_swipe");
    }
    if (hasActions) element.accessibilityCustomActions = actionsOf(item, running);
}

} // namespace pendix
