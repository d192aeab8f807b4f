#include "Probe/Watching/Watching.h"

#include "Probe/Motion/Motion.h"
#include "Probe/PendixProbe.h"

#include <QuartzCore/QuartzCore.h>
#include <SpringBoard/SpringBoard.h>

#include <objc/runtime.h>

@interface ProbeWatcher : NSObject
- (void)look:(NSTimer *)timer;
- (void)turned:(NSNotification *)notification;
@end

namespace probe {

namespace {

constexpr NSTimeInterval kLook = 0.05, kWatched = 600, kTurn = 1.5; // seconds
NSString *const kCommonModes = @"kCFRunLoopCommonModes";

double launchTime, firstToldTime;
BOOL told;
NSInteger orientationAtLaunch;
double endOfWatching, letDownTime; // 0: it is not let down
BOOL cameraSeen;

UIApplication *application() { return [UIApplication sharedApplication]; }

id frontApplication() {
    if (!isThere({"SpringBoard", "-_accessibilityFrontMostApplication"})) return nil;
    return [(id)application() _accessibilityFrontMostApplication];
}

NSString *identifierOf(id front) {
    for (const char *name : {"bundleIdentifier", "displayIdentifier"}) {
        SEL selector = sel_registerName(name);
        if ([front respondsToSelector:selector]) return [front performSelector:selector];
    }
    return nil;
}

void noteReachability() {
    const char *name = "reachability.untouched.time";
    Class manager = objc_getClass("SBReachabilityManager");
    if (!manager || ![manager reachabilitySupported]) return answerLater(name, absent());
    BOOL down = [(SBReachabilityManager *)[manager sharedInstance] reachabilityModeActive];
    if (down && letDownTime == 0) letDownTime = CACurrentMediaTime();
    if (!down && letDownTime > 0) {
        answerLater(name, number(CACurrentMediaTime() - letDownTime));
        letDownTime = 0;
    }
}

// The camera does without a status bar.
void noteCamera() {
    if (cameraSeen || ![identifierOf(frontApplication()) isEqual:@"com.apple.camera"]) return;
    cameraSeen = YES;
    after(kTurn, ^{
        UIWindow *window = [application() statusBarWindow];
        answerLater("status_bar.over_camera.counts_as_hidden", flag(application().statusBarHidden));
        answerLater("status_bar.over_camera.shows", flag(window && !window.hidden && window.alpha > 0));
    });
}

void noteTurn() {
    NSInteger held = [[UIDevice currentDevice] orientation];
    if (held != UIInterfaceOrientationLandscapeRight && held != UIInterfaceOrientationLandscapeLeft) return;
    after(kTurn, ^{
        if ([[UIDevice currentDevice] orientation] != held) return;
        answerLater(frontApplication() ? "turning.application.interface" : "turning.home.interface",
                    application().statusBarOrientation == held ? @"turned" : @"upright");
    });
}

ProbeWatcher *watcher() {
    static ProbeWatcher *shared = [ProbeWatcher new];
    return shared;
}

} // namespace

std::span<const char *const> watchedQuestions() {
    static const char *const all[] = {"device.orientation.at_launch",
                                      "device.orientation.first.time",
                                      "run_loop.touched",
                                      "run_loop.dragged",
                                      "run_loop.decelerating",
                                      "display.finger.ending",
                                      "turning.home.interface",
                                      "turning.application.interface",
                                      "reachability.untouched.time",
                                      "status_bar.over_camera.counts_as_hidden",
                                      "status_bar.over_camera.shows"};
    return all;
}

void watchLaunch() {
    UIDevice *device = [UIDevice currentDevice];
    launchTime = CACurrentMediaTime();
    orientationAtLaunch = device.orientation;
    [device beginGeneratingDeviceOrientationNotifications];
    [[NSNotificationCenter defaultCenter] addObserver:watcher()
                                             selector:@selector(turned:)
                                                 name:UIDeviceOrientationDidChangeNotification
                                               object:device];
}

void watchPerson() {
    answerLater("device.orientation.at_launch", number(orientationAtLaunch));
    answerLater("device.orientation.first.time",
                told ? (id)number(firstToldTime - launchTime) : (id)absent());
    endOfWatching = CACurrentMediaTime() + kWatched;
    watchFingers();
    NSTimer *timer = [NSTimer timerWithTimeInterval:kLook
                                             target:watcher()
                                           selector:@selector(look:)
                                           userInfo:nil
                                            repeats:YES];
    [[objc_getClass("NSRunLoop") mainRunLoop] addTimer:timer forMode:kCommonModes];
}

} // namespace probe

using namespace probe;

@implementation ProbeWatcher

- (void)look:(NSTimer *)timer {
    noteRunLoopMode();
    noteReachability();
    noteCamera();
    if (CACurrentMediaTime() > endOfWatching) [timer invalidate];
}

- (void)turned:(NSNotification *)notification {
    (void)notification;
    if (!told) firstToldTime = CACurrentMediaTime();
    told = YES;
    if (endOfWatching > 0) noteTurn();
}

@end
