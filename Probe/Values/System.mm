// The device, the application and its windows.
#include "Probe/Question.h"

#include <BiometricKit/BiometricKit.h>
#include <Darwin/sysctl.h>
#include <SpringBoard/SpringBoard.h>
#include <UIKit/UIKit.h>

// From 8.0 on.
@interface UIWindow (Secure)
- (BOOL)_isSecure;
@end

namespace probe {

namespace {

id machine() {
    char name[64] = {};
    size_t length = sizeof name - 1;
    sysctlbyname("hw.machine", name, &length, nullptr, 0);
    return text(name);
}

id version() { return [[UIDevice currentDevice] systemVersion]; }

id model() { return [[UIDevice currentDevice] model]; }

id idiom() { return number([[UIDevice currentDevice] userInterfaceIdiom]); }

id bounds() { return rectangle([[UIScreen mainScreen] bounds]); }

id scale() { return number([[UIScreen mainScreen] scale]); }

id application() { return className([UIApplication sharedApplication]); }

id orientation() { return number([[UIApplication sharedApplication] statusBarOrientation]); }

id levels() {
    const id parts[] = {number(UIWindowLevelNormal), number(UIWindowLevelStatusBar),
                        number(UIWindowLevelAlert)};
    return [NSArray arrayWithObjects:parts count:3];
}

id secure(UIWindow *window) {
    return [window respondsToSelector:@selector(_isSecure)] ? flag([window _isSecure]) : absent();
}

id windows() {
    NSMutableArray *result = [NSMutableArray array];
    for (UIWindow *window in [[UIApplication sharedApplication] windows]) {
        NSMutableDictionary *entry = [NSMutableDictionary dictionary];
        [entry setObject:className(window) forKey:@"class"];
        [entry setObject:number(window.windowLevel) forKey:@"level"];
        [entry setObject:rectangle(window.frame) forKey:@"frame"];
        [entry setObject:flag(window.hidden) forKey:@"hidden"];
        [entry setObject:secure(window) forKey:@"secure"];
        [result addObject:entry];
    }
    return result;
}

id statusBarWindowSecure() { return secure([[UIApplication sharedApplication] statusBarWindow]); }

id topDisplay() { return className([(id)[UIApplication sharedApplication] _accessibilityTopDisplay]); }

id frontApplication() {
    return className([(id)[UIApplication sharedApplication] _accessibilityFrontMostApplication]);
}

id reachability() {
    Class manager = objc_getClass("SBReachabilityManager");
    return manager ? flag([manager reachabilitySupported]) : absent();
}

id fingerManager() { return className([objc_getClass("BiometricKit") manager]); }

id fingerDelegate() {
    // Whoever it is, the extension takes its place.
    BiometricKit *manager = [objc_getClass("BiometricKit") manager];
    return className([manager delegate]);
}

id fingerMatching() {
    SBUIBiometricEventMonitor *monitor = [objc_getClass("SBUIBiometricEventMonitor") sharedInstance];
    return monitor ? flag([monitor isMatchingEnabled]) : absent();
}

} // namespace

std::span<const Question> systemQuestions() {
    static const Question all[] = {
        {"device.machine", machine},
        {"device.version", version},
        {"device.model", model},
        {"device.idiom", idiom},
        {"screen.bounds", bounds},
        {"screen.scale", scale},
        {"application.class", application},
        {"application.orientation", orientation},
        {"windows.levels", levels},
        {"windows.all", windows},
        {"windows.status_bar.secure", statusBarWindowSecure, {{"UIApplication", "-statusBarWindow"}}},
        {"application.top_display", topDisplay, {{"SpringBoard", "-_accessibilityTopDisplay"}}},
        {"application.front", frontApplication, {{"SpringBoard", "-_accessibilityFrontMostApplication"}}},
        {"reachability.supported", reachability, {{"SBReachabilityManager", "+reachabilitySupported"}}},
        {"finger.manager", fingerManager, {{"BiometricKit", "+manager"}}},
        {"finger.delegate", fingerDelegate, {{"BiometricKit", "+manager"}, {"BiometricKit", "-delegate"}}},
        {"finger.matching",
         fingerMatching,
         {{"SBUIBiometricEventMonitor", "+sharedInstance"},
          {"SBUIBiometricEventMonitor", "-isMatchingEnabled"}}}};
    return all;
}

} // namespace probe
