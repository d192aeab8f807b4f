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

NSString *badgeText(NSInteger value) {
    return value > kMostShown ? @"999+" : [NSString stringWithFormat:@"%d", static_cast<int>(value)];
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
UIImage *textImage(PanelBuild &build, NSString *text) {
    UIImage *image = [build.badgeTexts objectForKey:text];
    if (image) return image;
    image = [objc_getClass("SBIconBadgeView") _checkoutImageForText:text highlighted:NO];
    if (image) [build.badgeTexts setObject:image forKey:text];
    return image;
}

void drawBadge(PanelBuild &build, UIImageView *badge, UILabel *label, NSString *text) {
    Class badgeView = objc_getClass("SBIconBadgeView");
    UIImage *background = [badgeView _checkoutBackgroundImage];
    CGFloat down = background.size.height / 2 - 1, across = background.size.width / 2 - 1;
    badge.image = [background resizableImageWithCapInsets:UIEdgeInsetsMake(down, across, down, across)];
    UIImageView *drawn = [[UIImageView alloc] initWithFrame:badge.bounds];
    drawn.image = textImage(build, text);
    drawn.contentMode = UIViewContentModeCenter;
    [badge addSubview:drawn];
    [drawn release];
    label.hidden = YES;
}

} // namespace

void addBadge(PanelBuild &build, const PanelApplication &application, UIView *itemView, CGRect iconFrame) {
    NSString *text = badgeText([application.icon badgeValue]);
    UILabel *label =
        panelLabel(CGRectZero, text, [objc_getClass("SBIconBadgeView") _textFont], [UIColor whiteColor]);
    label.lineBreakMode = NSLineBreakByTruncatingMiddle;
    [label sizeToFit];
    Rect frame = badgeFrame(toRect(iconFrame), label.frame.size.width, panelBadgeHeight());

    UIImageView *badge = [[UIImageView alloc] initWithFrame:toCGRect(frame)];
    badge.tag = tags::itemBadge;
    badge.layer.name = text;
    badge.layer.cornerRadius = frame.height / 2;
    label.frame = CGRectMake(0, 0, frame.width, panelBadgeHeight());
    Class colorBadges = objc_getClass("ColorBadges");
    if (colorBadges && [colorBadges isEnabled]) {
        colorBadge(badge, label, application.icon, colorBadges);
    } else {
        drawBadge(build, badge, label, text);
    }
    [badge addSubview:label];
    badge.hidden = [application.icon badgeValue] == 0;
    [itemView addSubview:badge];
    [badge release];
}

} // namespace pendix
