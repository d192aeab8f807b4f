// From one lock face to the next, and from the last one to the list.
#include "Tweak/Core/Accessibility/Motion.h"
#include "Tweak/Core/Accessibility/Speech.h"
#include "Tweak/Core/AnimationDuration.h"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/SpringBoard+Device.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Lock/FaceParts.h"
#include "Tweak/Lock/Lock.h"
#include "Tweak/Lock/Replacements.h"
#include "Tweak/Lock/SpringBoard+Lock.h"

namespace pendix {

namespace {

constexpr float kLeaveAsk = 0.5f, kChangeFace = 0.4f, kUnlock = 0.5f; // seconds

void changeFace(NSInteger tag, CGFloat height, NSInteger other, CGFloat otherSide) {
    UIView *shown = lockFace(tag), *leaving = lockFace(other);
    UIView *panel = panelView();
    const CGRect frame = frameWithHeight(panel, height);
    letSpeak(shown);
    change(
        animationDuration(kChangeFace), [NSArray arrayWithObjects:shown, nil],
        ^{
            setX(shown, 0);
            setX(leaving, otherSide * leaving.frame.size.width);
            panel.frame = frame;
        },
        ^(BOOL) { focusOnPanel(); });
}

// Whether a button may change the face: not while the panel closes, not when it is unlocked and the faces
// only leave, and not behind a question, for then it is one of an earlier panel that a finger still held.
BOOL takesChoice() {
    UIView *ask = lockFace(tags::askFace);
    return isShow && needPasscode && (!ask || ask.frame.origin.y != 0);
}

// Cards stand higher than the strip that was built behind the lock. Whether there are any was decided then.
BOOL raiseCards() {
    if (lastGheight == 0) return NO;
    for (UIView *item in itemViews()) setY(item, 0);
    gheight = lastGheight;
    return YES;
}

void showList(SpringBoard *springBoard, int page, BOOL cards) {
    UIView *passed = lockFace(page);
    UIView *finger = [springBoard hasTouchID] ? lockFace(tags::fingerFace) : nil;
    UIView *keypad = lockFace(tags::keypadFace);
    UIView *panel = panelView(), *content = contentView(), *list = strip(), *dots = pageDotsView();
    const CGRect frame = frameWithHeight(panel, gheight);
    letSpeak(nil);
    change(
        animationDuration(kUnlock), [NSArray arrayWithObjects:list, dots, nil],
        ^{
            CGSize size = passed.frame.size;
            passed.frame = CGRectMake(0, size.height, size.width, size.height);
            panel.frame = frame;
            setHeight(content, gheight);
            if (cards) setHeight(list, gheight);
            list.alpha = 1;
            dots.alpha = 1;
        },
        ^(BOOL) {
            [finger removeFromSuperview];
            [keypad removeFromSuperview];
            focusOnPanel();
        });
}

} // namespace

void added::unlockTap(SpringBoard *, SEL, UIButton *button) {
    UIView *ask = button.superview;
    if (!isShown(ask)) return;
    UIView *keypad = lockFace(tags::keypadFace), *finger = lockFace(tags::fingerFace), *panel = panelView();
    const CGFloat height = fingerFaceIsChosen() ? lastHeight : lastHeight1;
    const CGRect frame = frameWithHeight(panel, height);
    letSpeak(fingerFaceIsChosen() ? finger : keypad);
    change(
        animationDuration(kLeaveAsk), [NSArray arrayWithObjects:keypad, finger, nil],
        ^{
            panel.frame = frame;
            setY(ask, height);
            keypad.alpha = 1;
            finger.alpha = 1;
        },
        ^(BOOL) {
            // Closed meanwhile: a panel that is open by now has an ask face of its own. And the keypad may
            // have been chosen, by a button that the question had uncovered.
            if (isShown(ask) && fingerFaceIsChosen()) requireFinger = YES;
            [ask removeFromSuperview];
            focusOnPanel();
        });
}

void added::usePasscode(SpringBoard *, SEL) {
    if (!takesChoice()) return;
    requireFinger = NO;
    changeFace(tags::keypadFace, lastHeight1, tags::fingerFace, 1);
}

void added::useTochID(SpringBoard *, SEL) {
    if (!takesChoice()) return;
    requireFinger = YES;
    changeFace(tags::fingerFace, lastHeight, tags::keypadFace, -1);
}

void added::unlockPendix(SpringBoard *self, SEL, int page) {
    const BOOL shown = isShow;
    NSLog(@"<Pendix> Pendix UI unlocked!");
    needPasscode = NO;
    const BOOL cards = shown && raiseCards();
    stopFingerMonitor();
    // A finger that matched while the panel closed has nothing left to show.
    if (!shown) return;
    announce(@"spoken_unlocked");
    showList(self, page, cards);
}

} // namespace pendix
