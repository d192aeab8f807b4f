#include "Tweak/Core/Names.h"
#include "Tweak/Core/Screen.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/SpringBoard+Device.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/Start/Replacements.h"
#include "Tweak/Start/SpringBoard+Settings.h"
#include "Tweak/Triggers/Triggers.h"

namespace pendix {

namespace {

constexpr UIWindowLevel kAboveStatusBar = 532;
constexpr NSTimeInterval kPollInterval = 1.0; // seconds

// The pane shows its Touch ID row only where there is a sensor. A file that cannot be read is written anew.
void recordTouchID(SpringBoard *springBoard) {
    NSNumber *hasSensor = [NSNumber numberWithBool:[springBoard hasTouchID]];
    writeSetting(keys::hasSensor, [hasSensor stringValue]);
}

void addScreenBackdrop() {
    _UIBackdropViewSettings *settings = [objc_getClass("_UIBackdropViewSettingsPasscodePaddle")
        settingsForStyle:_UIBackdropViewStylePasscodePaddle];
    _UIBackdropView *backdrop = [[objc_getClass("_UIBackdropView") alloc] initWithFrame:window.frame
                                                                autosizesToFitSuperview:YES
                                                                               settings:settings];
    backdrop.tag = tags::screenBackdrop;
    backdrop.alpha = 0;
    if (backdrop) [window addSubview:backdrop];
    [backdrop release];
}

void addDismissView() {
    UIView *view = [[UIView alloc] initWithFrame:window.frame];
    view.tag = tags::dismissView;
    view.backgroundColor = [UIColor clearColor];
    UITapGestureRecognizer *tap = [[UITapGestureRecognizer alloc] initWithTarget:Spring
                                                                          action:@selector(dismisPendixUI)];
    tap.numberOfTapsRequired = 1;
    [view addGestureRecognizer:tap];
    [tap release];
    [window addSubview:view];
    [view release];
}

void makeWindow() {
    window = [[UIWindow alloc] initWithFrame:portraitScreenBounds()];
    window.windowLevel = UIWindowLevelStatusBar + kAboveStatusBar;
    window.hidden = NO;
    window.backgroundColor = [UIColor clearColor];
    addScreenBackdrop();
    addDismissView();
    // The empty overlay lets every touch through until the panel is shown.
    window.userInteractionEnabled = NO;
}

// Visible by `enable` alone: the other watched settings count from their next change, or a badge's, on.
void makeStatusBarItem() {
    statusbaritem =
        [[NSClassFromString(@"LSStatusBarItem") alloc] initWithIdentifier:names::statusBarItem
                                                                alignment:StatusBarAlignmentRight];
    lastSwitcher = isOn(keys::runningMode);
    lastEnable = isOn(keys::enabled);
    lastHide = isOn(keys::hidesIndicator);
    lastTempor = isOn(keys::hidesWithoutBadges);
    statusbaritem.imageName = lastSwitcher ? names::switcherImage : names::badgeImage;
    statusbaritem.visible = lastEnable;
}

void startPolling(SpringBoard *springBoard) {
    NSTimer *poll = [NSTimer scheduledTimerWithTimeInterval:kPollInterval
                                                     target:springBoard
                                                   selector:@selector(preferenceChangesByMe)
                                                   userInfo:nil
                                                    repeats:YES];
    [poll fire];
}

void followOrientation(SpringBoard *springBoard) {
    UIDevice *device = [UIDevice currentDevice];
    [device beginGeneratingDeviceOrientationNotifications];
    [[NSNotificationCenter defaultCenter] addObserver:springBoard
                                             selector:@selector(pendixWillRotate:)
                                                 name:UIDeviceOrientationDidChangeNotification
                                               object:device];
}

} // namespace

void hooked::applicationDidFinishLaunching(SpringBoard *self, SEL _cmd, id application) {
    original::applicationDidFinishLaunching(self, _cmd, application);
    recordTouchID(self);
    registerListener();
    Spring = self;
    makeWindow();
    makeStatusBarItem();
    startPolling(self);
    followOrientation(self);
    NSLog(@"<Pendix> Loaded!");
}

} // namespace pendix
