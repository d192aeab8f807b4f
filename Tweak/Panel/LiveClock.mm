#include "Tweak/Core/Geometry/HandAngles.hpp"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/Panel/PanelBuild.h"
#include "Tweak/Panel/Replacements.h"

#include <math.h>

namespace pendix {

namespace {

constexpr float kFullTurn = 360; // degrees
constexpr CFTimeInterval kMinute = 60, kHour = 3600;
// A tenth of a day, not twelve hours: the hour hand of this clock hurries, as it always has.
constexpr CFTimeInterval kHourHandTurn = 8640;

float part(NSDate *date, NSDateFormatter *formatter, NSString *format) {
    [formatter setDateFormat:format];
    return [[formatter stringFromDate:date] floatValue];
}

void turn(SpringBoard *springBoard, UIView *hand, float start, CFTimeInterval duration) {
    CABasicAnimation *rotation = [CABasicAnimation animationWithKeyPath:@"transform.rotation.z"];
    rotation.fromValue = [springBoard DegreesToNumber:start];
    rotation.toValue = [springBoard DegreesToNumber:start + kFullTurn];
    rotation.duration = duration;
    rotation.repeatCount = HUGE_VALF;
    rotation.removedOnCompletion = NO;
    rotation.fillMode = kCAFillModeForwards;
    [hand.layer addAnimation:rotation forKey:@"rotate"];
}

} // namespace

void readClock() {
    NSDateFormatter *formatter = [NSDateFormatter new];
    NSDate *now = [NSDate date];
    ss = part(now, formatter, @"ss");
    mm = part(now, formatter, @"mm");
    hh = part(now, formatter, @"HH");
    [formatter release];
    HandAngles angles = handAngles(hh, mm, ss);
    if (hh >= 12) hh -= 12;
    lastRotation = angles.second;
    lastRotation1 = angles.minute;
    lastRotation2 = angles.hour;
}

void added::liveClock(SpringBoard *self, SEL) {
    readClock();
    // The content view's first subview is the strip only in an unpaged panel; behind page dots the hands
    // stand as they were drawn.
    NSArray *views = [[[window viewWithTag:tags::panel] viewWithTag:tags::content] subviews];
    UIView *clock = [[views count] ? [views objectAtIndex:0] : nil viewWithTag:tags::clockItem];
    turn(self, [clock viewWithTag:tags::secondHand], lastRotation, kMinute);
    turn(self, [clock viewWithTag:tags::minuteHand], lastRotation1, kHour);
    turn(self, [clock viewWithTag:tags::hourHand], lastRotation2, kHourHandTurn);
}

} // namespace pendix
