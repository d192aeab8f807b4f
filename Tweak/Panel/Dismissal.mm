// Closing the panel back into the indicator.
#include "Tweak/Core/Accessibility/Aids.h"
#include "Tweak/Core/AnimationDuration.h"
#include "Tweak/Core/PanelAnchor.h"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/SpringBoard+Device.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Support/UIView+Touchable.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Lock/Lock.h"
#include "Tweak/Panel/Corners.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/Panel/Replacements.h"
#include "Tweak/Panel/SpokenPanel.h"
#include "Tweak/StatusBar/StatusBar.h"

namespace pendix {

namespace {

constexpr float kClosing = 0.5f;          // seconds
constexpr CFTimeInterval kSquaring = 0.5; // seconds

// Where the panel shrinks to. An indicator that has just been hidden has left its glyph's copy behind.
CGRect collapsePoint(SpringBoard *springBoard) {
    UIView *item = [springBoard pendix];
    return toCGRect(growthPoint(item ? placeInOverlay(item).frame : toRect(overlayView(tags::logo).frame)));
}

// Into the indicator; where motion is reduced all fades in place.
void collapse(SpringBoard *springBoard) {
    CGRect point = collapsePoint(springBoard);
    const BOOL fades = reducesMotion();
    for (UIView *view in window.subviews) {
        if (view.tag == tags::dismissView || view.tag == tags::logo) continue;
        if (fades || view.tag == tags::screenBackdrop) {
            view.alpha = 0;
        } else {
            view.frame = point;
        }
    }
}

// Of the question and of the lock's faces.
void letGoOfAnswers() {
    UIView *list = strip();
    for (UIView *view in contentView().subviews)
        if (view != list) letGoOfButtons(view);
}

void stopHands() {
    UIView *clock = [strip() viewWithTag:tags::clockItem];
    const NSInteger hands[] = {tags::secondHand, tags::minuteHand, tags::hourHand};
    for (NSInteger tag : hands) [[clock viewWithTag:tag].layer removeAllAnimations];
}

void tearDown() {
    // Opened again while it closed: what stands in the window belongs to the new panel.
    if (isShow) return;
    window.userInteractionEnabled = NO;
    stopHands();
    for (UIView *view in window.subviews)
        if (view.tag != tags::dismissView && view.tag != tags::screenBackdrop) [view removeFromSuperview];
}

} // namespace

void added::dismisPendixUI(SpringBoard *self, SEL) {
    if (!isShow) return;
    NSLog(@"<Pendix> Pendix's UI dismissing!");
    isShow = NO;
    isEditing = NO;
    letGoOfAnswers();
    takeOverSpeech(NO);
    requireFinger = NO;
    if ([self hasTouchID]) stopFingerMonitor();
    if (!reducesMotion()) turnCorners(panelView(), kPanelRadius, 0, kSquaring);
    [UIView animateTouchablyFor:animationDuration(kClosing)
        animations:^{
            window.backgroundColor = [UIColor clearColor];
            for (UIView *view in [self statusBarItemViews])
                if (![self isPendix:view]) view.alpha = 1.0;
            collapse(self);
        }
        completion:^(BOOL) { tearDown(); }];
}

} // namespace pendix
