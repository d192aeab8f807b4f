#include "DefaultSpeech.h"
#include "Forgetting.h"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "Runtime/Objc/Versions.hpp"

#include <UIKit/UIAccessibilityElement.h>

namespace {

struct ActionState {
    NSString *name = nil; // retained
    id target = nil;      // not retained
    SEL selector = nullptr;
};

ActionState &state(UIAccessibilityCustomAction *action) {
    return sim::lazyState<ActionState>(action->_customActionState);
}

const sim::ClassVersions kClasses[] = {{"UIAccessibilityCustomAction", sim::kFirst8, sim::kNewest}};
const bool kRegistered = (sim::registerClassVersions(kClasses), true);

} // namespace

@implementation UIAccessibilityElement

- (instancetype)initWithAccessibilityContainer:(id)container {
    if ((self = [super init])) [self setAccessibilityContainer:container];
    return self;
}

- (void)dealloc {
    sim::forgetAccessibility(self);
    [super dealloc];
}

- (id)accessibilityContainer {
    return static_cast<id>(_accessibilityElementState);
}
- (void)setAccessibilityContainer:(id)container {
    _accessibilityElementState = container;
}

- (sim::Speech)defaultSpeech {
    return {.element = YES};
}

@end

@implementation UIAccessibilityCustomAction

- (instancetype)initWithName:(NSString *)name target:(id)target selector:(SEL)selector {
    if (!(self = [super init])) return nil;
    [self setName:name];
    [self setTarget:target];
    [self setSelector:selector];
    return self;
}

- (void)dealloc {
    [state(self).name release];
    delete &state(self);
    [super dealloc];
}

- (NSString *)name {
    return state(self).name;
}
- (void)setName:(NSString *)name {
    sim::copyInto(state(self).name, name);
}

- (id)target {
    return state(self).target;
}
- (void)setTarget:(id)target {
    state(self).target = target;
}

- (SEL)selector {
    return state(self).selector;
}
- (void)setSelector:(SEL)selector {
    state(self).selector = selector;
}

@end
