// The Clock application's face: hands that liveClock turns.
#include "Tweak/Panel/PanelBuild.h"

#include "Tweak/Core/Tags.h"

namespace pendix {

namespace {

// Built centred; the anchor then moves to its lower end, which so comes to stand in the middle of the face.
void addHand(UIView *face, NSInteger tag, UIColor *color, CGFloat width, CGFloat length) {
    CGSize size = face.bounds.size;
    CGRect frame = CGRectMake((size.width - width) / 2, (size.height - length) / 2, width, length);
    UIView *hand = [[UIView alloc] initWithFrame:frame];
    hand.tag = tag;
    hand.backgroundColor = color;
    hand.layer.cornerRadius = width / 2;
    hand.layer.anchorPoint = CGPointMake(0.5, 1.0);
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
    addHand(iconImage, tags::hourHand, black, 2, side / 4);
    addHand(iconImage, tags::minuteHand, black, 2, side / 2 - 9);
    addCentre(iconImage, black, 3);
    addHand(iconImage, tags::secondHand, red, 1, side / 2 - 6);
    addCentre(iconImage, red, 2);
}

} // namespace pendix
