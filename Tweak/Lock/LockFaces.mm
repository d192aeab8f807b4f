#include "Tweak/Lock/Lock.h"

#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/SpringBoard+Device.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Support/UIView+Touchable.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Lock/FaceParts.h"
#include "Tweak/Lock/LockRules.hpp"
#include "Tweak/Lock/Passcode.h"

namespace pendix {

namespace {

Where currentWhere() {
    NSString *where = textSetting(keys::lockMoment);
    if ([where length] == 0 || [where isEqualToString:@"every"]) return Where::everyOpening;
    return [where isEqualToString:@"lockscreen"] ? Where::deviceLocked : Where::displayOff;
}

BOOL wouldArm() {
    BOOL passcodeLocked =
        [(SBUserAgent *)[objc_getClass("SBUserAgent") sharedUserAgent] deviceIsPasscodeLocked];
    return armedAtOpening(currentWhere(), needPasscode, passcodeLocked);
}

BOOL hasCode() { return isOn(keys::lockEnabled) && isPasscode(setting(keys::passcode)); }

// A touch reaches only what lies inside: the content view is as high as the highest face meanwhile.
void cover(UIView *content) {
    for (UIView *face in content.subviews)
        if (face.frame.size.height > content.frame.size.height) setHeight(content, face.frame.size.height);
}

} // namespace

void armLock() {
    ++lockRound;
    needPasscode = wouldArm();
}

void armLockInTheDark() {
    if (![@"everyoff" isEqual:setting(keys::lockMoment)]) return;
    ++lockRound;
    needPasscode = YES;
}

BOOL isLocked() { return needPasscode && hasCode(); }

BOOL panelWouldAsk() { return wouldArm() && hasCode(); }

CGFloat addLockFaces(const LockFacesInput &input) {
    const BOOL sensor = [input.springBoard hasTouchID];
    const OpeningFace opening = openingFace(sensor, isOn(keys::unlocksByFinger), isOn(keys::asksFirst));
    input.strip.alpha = 0;
    input.dots.alpha = 0;

    UIView *keypad = addKeypad(input, sensor), *finger = sensor ? addFingerFace(input) : nil;
    if (sensor) startFingerMonitor();
    requireFinger = opening.listens;
    if (opening.finger) {
        setX(keypad, -input.width);
    } else {
        setX(finger, input.width);
    }

    UIView *shown = opening.finger ? finger : keypad;
    if (opening.asks) {
        shown.alpha = 0;
        shown = addAskFace(input);
    }
    for (UIView *face in input.content.subviews)
        if (face != input.strip && face != input.dots) orderFace(face);
    letSpeak(shown);
    cover(input.content);
    return shown.frame.size.height;
}

void fitLockFaces() {
    constexpr NSTimeInterval kTurn = 0.3; // seconds
    UIView *panel = panelView(), *keypad = lockFace(tags::keypadFace);
    if (!keypad || !isShow) return;
    const BOOL keypadShows = panel.frame.size.height == keypad.frame.size.height;
    [UIView animateTouchablyFor:kTurn
                     animations:^{
                         layoutKeypad([Spring hasTouchID]);
                         cover(contentView());
                         if (keypadShows) panel.frame = frameWithHeight(panel, keypad.frame.size.height);
                     }];
}

} // namespace pendix
