// The count on an item's icon: the home screen's own drawing, or the colours of another extension.
#include "Tweak/Panel/PanelBuild.h"

#include "Tweak/Core/Geometry/BadgeLayout.hpp"
#include "Tweak/Core/PanelAnchor.h"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"

#include <ColorBadges/ColorBadges.h>

namespace pendix {

namespace {

constexpr NSInteger kMostShown = 999;
constexpr CGFloat kBorderWidth = 1;

NSString *textFor(NSInteger value) {
    return value > kMostShown ? @"999+" : [NSString stringWithFormat:@"%d", static_cast<int>(value)];
}

BadgeText &badgeText(PanelBuild &build, NSInteger value) {
    if (value > kMostShown) value = kMostShown + 1; // they all say the same
    for (BadgeText &text : build.badgeTexts)
        if (text.value == value) return text;
    build.badgeTexts.push_back({value, textFor(value), nil});
    return build.badgeTexts.back();
}

UIColor *colorOf(int rgb) {
    auto component = [&](int shift) { return static_cast<CGFloat>(rgb >> shift & 0xff) / 255; };
    return [UIColor colorWithRed:component(16) green:component(8) blue:component(0) alpha:1];
}

void colorBadge(UIImageView *badge, UILabel *label, SBIcon *icon, Class colorBadges) {
    int color = [(ColorBadges *)[colorBadges sharedInstance] colorForIcon:icon];
    badge.backgroundColor = colorOf(color);
    UIColor *text = [UIColor whiteColor];
    if ([colorBadges areBordersEnabled]) {
        if (![colorBadges isDarkColor:color]) text = [UIColor blackColor];
        badge.layer.borderColor = text.CGColor;
        badge.layer.borderWidth = kBorderWidth;
    }
    label.textColor = text;
}

// Drawn once for all badges of one opening that say the same.
UIImage *textImage(BadgeText &text) {
    if (!text.image)
        text.image = [objc_getClass("SBIconBadgeView") _checkoutImageForText:text.text highlighted:NO];
    return text.image;
}

UIImage *badgeGround() {
    UIImage *image = [objc_getClass("SBIconBadgeView") _checkoutBackgroundImage];
    CGFloat down = image.size.height / 2 - 1, across = image.size.width / 2 - 1;
    return [image resizableImageWithCapInsets:UIEdgeInsetsMake(down, across, down, across)];
}

void drawBadge(PanelBuild &build, UIImageView *badge, UILabel *label, BadgeText &text) {
    if (!build.badgeGround) build.badgeGround = badgeGround();
    badge.image = build.badgeGround;
    UIImageView *drawn = [[UIImageView alloc] initWithFrame:badge.bounds];
    drawn.image = textImage(text);
    drawn.contentMode = UIViewContentModeCenter;
    [badge addSubview:drawn];
    [drawn release];
    label.hidden = YES;
}

} // namespace

void addBadge(PanelBuild &build, const PanelApplication &application, UIView *itemView, CGRect iconFrame) {
    const NSInteger value = [application.icon badgeValue];
    BadgeText &text = badgeText(build, value);
    if (!build.badgeFont) build.badgeFont = [objc_getClass("SBIconBadgeView") _textFont];
    UILabel *label = panelLabel(CGRectZero, text.text, build.badgeFont, [UIColor whiteColor]);
    label.lineBreakMode = NSLineBreakByTruncatingMiddle;
    const CGFloat width = [label sizeThatFits:label.bounds.size].width;
    Rect frame = badgeFrame(toRect(iconFrame), width, panelBadgeHeight());

    UIImageView *badge = [[UIImageView alloc] initWithFrame:toCGRect(frame)];
    badge.tag = tags::itemBadge;
    badge.layer.name = text.text;
    badge.layer.cornerRadius = frame.height / 2;
    label.frame = CGRectMake(0, 0, frame.width, panelBadgeHeight());
    Class colorBadges = objc_getClass("ColorBadges");
    if (colorBadges && [colorBadges isEnabled]) {
        colorBadge(badge, label, application.icon, colorBadges);
    } else {
        drawBadge(build, badge, label, text);
    }
    [badge addSubview:label];
    badge.hidden = value == 0;
    [itemView addSubview:badge];
    [badge release];
}

} // namespace pendix
