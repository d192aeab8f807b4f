// The fingerprint sensor: who observes it, whether it looks for a match, and what it tells.
#include "BiometricKit+Further.h"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Process/Device.hpp"
#include "Runtime/Process/Events.hpp"
#include "SpringBoard/HomeScreen.h"

#include <BiometricKit/BiometricKit.h>

#include <algorithm>
#include <vector>

namespace {

struct MonitorState {
    std::vector<id> observers; // not retained
    bool matching = false;
};

MonitorState &state(SBUIBiometricEventMonitor *monitor) {
    return sim::lazyState<MonitorState>(monitor->_monitorState);
}

void note(const char *what) { sim::recordEvent("biometric", sim::Object{{"what", what}}); }

} // namespace

@implementation SBUIBiometricEventMonitor

+ (instancetype)sharedInstance {
    static SBUIBiometricEventMonitor *monitor = [self new];
    return monitor;
}

- (instancetype)init {
    if ((self = [super init])) [[BiometricKit manager] setDelegate:self];
    return self;
}

- (void)addObserver:(id)observer {
    auto &observers = state(self).observers;
    if (!observer || std::find(observers.begin(), observers.end(), observer) != observers.end()) return;
    observers.push_back(observer);
    note("observe");
}

- (void)removeObserver:(id)observer {
    if (std::erase(state(self).observers, observer) > 0) note("unobserve");
}

- (void)_startMatching {
    note("start");
}

- (void)_stopMatching {
    [self _setMatchingEnabled:NO];
}

- (void)_setMatchingEnabled:(BOOL)enabled {
    if (state(self).matching == (enabled == YES)) return;
    state(self).matching = enabled;
    note(enabled ? "matching_on" : "matching_off");
}

- (BOOL)isMatchingEnabled {
    return state(self).matching;
}

- (BOOL)hasEnrolledIdentities {
    return sim::device().touchSensor;
}

@end

@implementation BiometricKit

+ (instancetype)manager {
    static BiometricKit *kit = [self new];
    return kit;
}

- (id)delegate {
    return static_cast<id>(_biometricState);
}

- (void)setDelegate:(id)delegate {
    _biometricState = delegate;
}

- (int)match:(id)identities {
    return [self match:identities withOptions:nil];
}

- (int)match:(id)identities withOptions:(id)options {
    [[SBUIBiometricEventMonitor sharedInstance] _setMatchingEnabled:YES];
    return 0;
}

- (void)cancel {
    [[SBUIBiometricEventMonitor sharedInstance] _setMatchingEnabled:NO];
}

@end

namespace sim {

// A sensor that looks for no match tells nothing. Each observer of the moment hears of it once, unless one
// before took it off the list.
bool sendFingerEvent(unsigned event) {
    if (!device().touchSensor) return false;
    SBUIBiometricEventMonitor *monitor = [SBUIBiometricEventMonitor sharedInstance];
    auto &own = state(monitor);
    if (!own.matching) return true;
    for (id observer : std::vector(own.observers))
        if (std::find(own.observers.begin(), own.observers.end(), observer) != own.observers.end())
            [observer biometricEventMonitor:monitor handleBiometricEvent:event];
    return true;
}

} // namespace sim
