// The Clock application's face: hands that show the time at which it is drawn, and that liveClock turns.
#include "Tweak/Panel/PanelBuild.h"

#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"

#include <math.h>

namespace pendix {

namespace {

// Built centred; the anchor then moves to its lower end, which so comes to stand in the middle of the face.
// `angle` is in degrees from twelve.
void addHand(UIView *face, NSInteger tag, UIColor *color, CGFloat width, CGFloat length, float angle) {
    CGSize size = face.bounds.size;
    CGRect frame = CGRectMake((size.width - width) / 2, (size.height - length) / 2, width, length);
    UIView *hand = [[UIView alloc] initWithFrame:frame];
    hand.tag = tag;
    hand.backgroundColor = color;
    hand.layer.cornerRadius = width / 2;
    hand.layer.anchorPoint = CGPointMake(0.5, 1.0);
    hand.transform = CGAffineTransformMakeRotation(angle * M_PI / 180);
    [face addSubview:hand];
    [hand release];
}

void addCentre(UIView *face, UIColor *color, CGFloat side) {
    CGSize size = face.bounds.size;
    CGRect frame = CGRectMake((size.width - side) / 2, (size.height - side) / 2, side, side);
    UIView *dot = [[UIView alloc] initWithFrame:frame];
    dot.backgroundColor = color;
    dot.layer.cornerRadius = side / 2;
    [face addSubview:dot];
    [dot release];
}

} // namespace

void drawClock(UIView *itemView, UIView *iconImage) {
    UIColor *black = [UIColor blackColor], *red = [UIColor redColor];
    const CGFloat side = iconImage.bounds.size.width;
    itemView.tag = tags::clockItem;
    readClock();
    addHand(iconImage, tags::hourHand, black, 2, side / 4, lastRotation2);
    addHand(iconImage, tags::minuteHand, black, 2, side / 2 - 9, lastRotation1);
    addCentre(iconImage, black, 3);
    addHand(iconImage, tags::secondHand, red, 1, side / 2 - 6, lastRotation);
    addCentre(iconImage, red, 2);
}

} // namespace pendix
