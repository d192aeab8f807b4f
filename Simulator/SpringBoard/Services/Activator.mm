// The gesture launcher: who is registered, and what the event assigned to a listener sets off.
#include "Activator.h"

#include "LAActivator+Further.h"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "Runtime/Process/Events.hpp"
#include "SpringBoard/Applications/ApplicationLife.h"
#include "SpringBoard/HomeScreen.h"
#include "SpringBoard/Lock/LockState.h"

#include <Activator/libactivator.h>

#include <map>
#include <objc/runtime.h>

namespace {

struct ActivatorState {
    std::map<std::string, id> listeners; // retained
};

ActivatorState &state(LAActivator *activator) {
    return sim::lazyState<ActivatorState>(activator->_activatorState);
}

struct EventState {
    NSString *name = nil, *mode = nil; // retained
    BOOL handled = NO;
};

EventState &state(LAEvent *event) { return sim::lazyState<EventState>(event->_activatorEventState); }

id find(LAActivator *activator, NSString *name) {
    auto &listeners = state(activator).listeners;
    auto found = name ? listeners.find([name UTF8String]) : listeners.end();
    return found == listeners.end() ? nil : found->second;
}

// false when the listener has none of the two methods.
bool deliver(id<LAListener> listener, LAActivator *activator, LAEvent *event, NSString *name) {
    if ([listener respondsToSelector:@selector(activator:receiveEvent:forListenerName:)]) {
        [listener activator:activator receiveEvent:event forListenerName:name];
    } else if ([listener respondsToSelector:@selector(activator:receiveEvent:)]) {
        [listener activator:activator receiveEvent:event];
    } else {
        return false;
    }
    return true;
}

NSString *currentMode() {
    if (sim::lockState().screenLocked) return @"lockscreen";
    return sim::frontApplication() ? @"application" : @"springboard";
}

LAEvent *makeEvent(NSString *name) {
    LAEvent *event = [[[objc_getClass("LAEvent") alloc] init] autorelease];
    if (event) state(event) = {name, currentMode(), NO};
    return event;
}

} // namespace

@implementation LAEvent

- (void)dealloc {
    delete &state(self);
    [super dealloc];
}

- (NSString *)name {
    return state(self).name;
}

- (NSString *)mode {
    return state(self).mode;
}

- (BOOL)isHandled {
    return state(self).handled;
}

- (void)setHandled:(BOOL)handled {
    state(self).handled = handled;
}

@end

@implementation LAActivator

+ (instancetype)sharedInstance {
    static LAActivator *activator = [self new];
    return activator;
}

- (void)registerListener:(id<LAListener>)listener forName:(NSString *)name {
    if (!listener || !name) return;
    id &slot = state(self).listeners[[name UTF8String]];
    sim::retainInto(slot, listener);
    sim::recordEvent("listener", sim::Object{{"name", [name UTF8String]}});
}

- (void)unregisterListenerWithName:(NSString *)name {
    auto &listeners = state(self).listeners;
    auto found = name ? listeners.find([name UTF8String]) : listeners.end();
    if (found == listeners.end()) return;
    [found->second autorelease];
    listeners.erase(found);
}

- (BOOL)hasListenerWithName:(NSString *)name {
    return find(self, name) != nil;
}

- (id<LAListener>)listenerForName:(NSString *)name {
    return find(self, name);
}

- (NSArray *)availableListenerNames {
    NSMutableArray *names = [NSMutableArray array];
    for (const auto &[name, listener] : state(self).listeners)
        [names addObject:[NSString stringWithUTF8String:name.c_str()]];
    return names;
}

- (BOOL)listenerWithName:(NSString *)name isCompatibleWithEventMode:(NSString *)mode {
    id<LAListener> listener = find(self, name);
    if (![listener respondsToSelector:@selector(activator:requiresCompatibleEventModesForListenerWithName:)])
        return listener != nil;
    NSArray *modes = [listener activator:self requiresCompatibleEventModesForListenerWithName:name];
    return !modes || [modes containsObject:mode];
}

- (NSString *)localizedTitleForListenerName:(NSString *)name {
    id<LAListener> listener = find(self, name);
    return [listener respondsToSelector:@selector(activator:requiresLocalizedTitleForListenerName:)]
               ? [listener activator:self requiresLocalizedTitleForListenerName:name]
               : name;
}

- (NSString *)localizedDescriptionForListenerName:(NSString *)name {
    id<LAListener> listener = find(self, name);
    return [listener respondsToSelector:@selector(activator:requiresLocalizedDescriptionForListenerName:)]
               ? [listener activator:self requiresLocalizedDescriptionForListenerName:name]
               : nil;
}

- (void)sendEvent:(LAEvent *)event toListenerWithName:(NSString *)name {
    if (![self listenerWithName:name isCompatibleWithEventMode:[event mode]]) return;
    id listener = [[find(self, name) retain] autorelease];
    if (!deliver(listener, self, event, name) || ![event isHandled]) return;
    for (const auto &[other, candidate] : std::map(state(self).listeners))
        if (candidate != listener && [candidate respondsToSelector:@selector(activator:
                                                                       otherListenerDidHandleEvent:)])
            [candidate activator:self otherListenerDidHandleEvent:event];
}

- (NSString *)currentEventMode {
    return currentMode();
}

@end

namespace sim {

bool sendActivatorEvent(const std::string &listener) {
    NSString *name = [NSString stringWithUTF8String:listener.c_str()];
    LAActivator *activator = [objc_getClass("LAActivator") sharedInstance];
    if (![activator hasListenerWithName:name]) return false;
    [activator sendEvent:makeEvent(@"libactivator.statusbar.hold") toListenerWithName:name];
    return true;
}

bool sendActivatorDeactivateEvent() {
    LAActivator *activator = [objc_getClass("LAActivator") sharedInstance];
    if (!activator) return false;
    LAEvent *event = makeEvent(@"libactivator.menu.press.single");
    for (const auto &[name, listener] : std::map(state(activator).listeners))
        if ([listener respondsToSelector:@selector(activator:receiveDeactivateEvent:)])
            [listener activator:activator receiveDeactivateEvent:event];
    return [event isHandled];
}

} // namespace sim
