#include "ApplicationState.h"

#include "Runtime/Process/Device.hpp"
#include "Runtime/Time/Clock.hpp"
#include "UIDevice+Further.h"

#include <UIKit/UIDevice.h>

NSString *const UIDeviceOrientationDidChangeNotification = @"UIDeviceOrientationDidChangeNotification";

namespace {
UIDeviceOrientation held = UIDeviceOrientationPortrait;
UIDeviceOrientation reported = UIDeviceOrientationUnknown;
int listeners = 0;

void report() {
    if (!listeners || reported == held) return;
    reported = held;
    [[NSNotificationCenter defaultCenter] postNotificationName:UIDeviceOrientationDidChangeNotification
                                                        object:[UIDevice currentDevice]];
}

} // namespace

namespace sim {

void setDeviceOrientation(UIDeviceOrientation next) {
    held = next;
    report();
}

UIDeviceOrientation deviceOrientation() { return held; }

} // namespace sim

@implementation UIDevice

+ (UIDevice *)currentDevice {
    static UIDevice *device = [UIDevice new];
    return device;
}

- (NSString *)model {
    return sim::device().pad ? @"iPad" : @"iPhone";
}

- (NSString *)systemVersion {
    static sim::Version told;
    static NSString *text = nil;
    if (text && told == sim::device().version) return text;
    told = sim::device().version;
    [text autorelease];
    return text = [[NSString stringWithUTF8String:sim::toString(told).c_str()] retain];
}

- (UIDeviceOrientation)orientation {
    return reported;
}

- (UIUserInterfaceIdiom)userInterfaceIdiom {
    return sim::device().pad ? UIUserInterfaceIdiomPad : UIUserInterfaceIdiomPhone;
}

- (void)beginGeneratingDeviceOrientationNotifications {
    if (++listeners > 1) return;
    sim::Clock &clock = sim::Clock::shared();
    clock.schedule(clock.now(), sim::Clock::Phase::timer, report);
}

- (void)endGeneratingDeviceOrientationNotifications {
    if (listeners && --listeners == 0) reported = UIDeviceOrientationUnknown;
}

@end
