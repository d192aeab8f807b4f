#include "Tweak/Lock/PendixTouchIDController.h"

#include "Tweak/Core/Accessibility/Speech.h"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/Sounds.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Support/UIView+Shimmer.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Core/Translator.h"
#include "Tweak/Lock/Entry.h"
#include "Tweak/Lock/FaceParts.h"
#include "Tweak/Lock/SpringBoard+Lock.h"

namespace {

SBUIBiometricEventMonitor *monitor() {
    return [(BiometricKit *)[objc_getClass("BiometricKit") manager] delegate];
}

UIView *fingerFace() { return pendix::lockFace(pendix::tags::fingerFace); }

} // namespace

@implementation PendixTouchIDController

- (PKGlyphView *)fingerPrint {
    return (PKGlyphView *)pendix::subviewWithTag(fingerFace(), pendix::tags::glyph);
}

- (void)resetFinger {
    [[self fingerPrint] setState:PKGlyphViewStateIdle animated:YES completionHandler:nil];
}

- (void)scan {
    [[self fingerPrint] setState:PKGlyphViewStateScanning animated:YES completionHandler:nil];
}

- (void)done {
    pendix::requireFinger = NO;
    const pendix::Entry finger;
    void (^unlock)(void) = ^{
        if (finger.counts()) [pendix::Spring unlockPendix:pendix::tags::fingerFace];
    };
    if (PKGlyphView *glyph = [self fingerPrint]) {
        [glyph setState:PKGlyphViewStateTicked animated:YES completionHandler:unlock];
    } else {
        unlock();
    }
}

- (void)fail:(NSString *)message {
    [[self fingerPrint] stopShimmering];
    ((UILabel *)pendix::subviewWithTag(fingerFace(), pendix::tags::faceTitle)).text = message;
    pendix::announce(@"fail");
}

- (void)biometricEventMonitor:(SBUIBiometricEventMonitor *)monitor handleBiometricEvent:(NSUInteger)event {
    if (!pendix::isShow || !pendix::requireFinger) return;
    switch (event) {
    case SBUIBiometricEventFingerUp:
        [self resetFinger];
        break;
    case SBUIBiometricEventFingerDown:
        [self scan];
        break;
    case SBUIBiometricEventMatched:
        [self done];
        break;
    case SBUIBiometricEventFailure5:
    case SBUIBiometricEventDisabled:
    case SBUIBiometricEventFailure7:
    case SBUIBiometricEventFailure8:
        [self fail:pendix::Translator(@"fail")];
        break;
    case SBUIBiometricEventNotMatched9:
    case SBUIBiometricEventNotMatched10:
        [self resetFinger];
        AudioServicesPlaySystemSound(pendix::sounds::vibration);
        break;
    }
}

- (void)startMonitoring {
    if (isMonitoring) return;
    isMonitoring = YES;
    previousMatchingSetting = [monitor() isMatchingEnabled];
    [monitor() addObserver:self];
    [monitor() _setMatchingEnabled:YES];
    [monitor() _startMatching];
}

- (void)stopMonitoring {
    if (!isMonitoring) return;
    isMonitoring = NO;
    [monitor() removeObserver:self];
    [monitor() _setMatchingEnabled:previousMatchingSetting];
}

+ (instancetype)sharedInstance {
    static PendixTouchIDController *controller = [self new];
    return controller;
}

@end
