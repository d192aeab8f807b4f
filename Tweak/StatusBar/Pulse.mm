#include "Tweak/StatusBar/PulseStep.hpp"

#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"
#include "Tweak/StatusBar/Replacements.h"
#include "Tweak/StatusBar/StatusBar.h"

namespace pendix {

namespace {

constexpr CGFloat kGlowRadius = 13.0; // points
constexpr float kGlowOpacity = 1.0f;

void setGlow(UIView *view, UIColor *color) {
    CALayer *layer = view.layer;
    layer.shadowRadius = kGlowRadius;
    layer.shadowOpacity = kGlowOpacity;
    layer.shadowPath = [UIBezierPath bezierPathWithRect:layer.bounds].CGPath;
    layer.shadowColor = color.CGColor;
}

} // namespace

void added::makePulse(SpringBoard *self, SEL, UIColor *color) {
    if (needToPulse || !mayPulse()) return;
    window1 = [[UIApplication sharedApplication] statusBarWindow];
    UIView *view = window1 ? [self pendix] : nil;
    if (!view) return;
    co = PulseStep::startAlpha;
    per = PulseStep::startStep;
    needToPulse = YES;
    NSTimer *timer = [NSTimer scheduledTimerWithTimeInterval:PulseStep::interval
                                                      target:self
                                                    selector:@selector(pulse:)
                                                    userInfo:nil
                                                     repeats:YES];
    [timer fire];
    setGlow(view, color);
    NSLog(@"<Pendix> Pulsing!");
}

void added::pulse(SpringBoard *self, SEL, NSTimer *timer) {
    UIView *view = needToPulse ? [self pendix] : nil;
    if (!view) {
        needToPulse = NO;
        [timer invalidate];
        return;
    }
    // A status bar that changed its style has dropped the glow.
    if (view.layer.shadowOpacity != kGlowOpacity) setGlow(view, pendix::color(keys::pulseColor, @"clear"));
    PulseStep step = nextPulseStep(static_cast<float>(view.alpha), per);
    co = step.alpha;
    per = step.step;
    view.alpha = co;
}

void added::removePulse(SpringBoard *self, SEL) {
    needToPulse = NO;
    UIView *view = [self pendix];
    view.alpha = 1.0;
    view.layer.shadowOpacity = 0;
}

} // namespace pendix
