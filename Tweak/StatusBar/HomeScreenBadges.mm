// The home screen's own badges: hidden, and replaced by a small mark in the icon's corner that fades while
// its application is open.
#include "Tweak/Core/AnimationDuration.h"
#include "Tweak/Core/Applications.h"
#include "Tweak/Core/Names.h"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/Support/UIImage+AverageColor.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/StatusBar/Replacements.h"

namespace pendix {

namespace {

NSString *const kMarkImage = @"pendixMiniNotification.png";

// A value of the badge views' layers: they were made hidden, by this extension.
NSString *const kMadeHidden = @"madeHidden";

constexpr float kFade = 0.2f;     // seconds, when a badge changes and when the application opens
constexpr float kFadeBack = 0.5f; // when the application is left

BOOL hidesBadges(NSDictionary *settings) {
    return isOn(keys::hidesBadges, settings) && isOn(keys::enabled, settings);
}

UIView *markOn(SBIconView *iconView) { return subviewWithTag(iconView, tags::iconMark); }

void fade(UIView *mark, CGFloat alpha, float seconds) {
    [UIView animateWithDuration:animationDuration(seconds) animations:^{ mark.alpha = alpha; }];
}

// The icon's standard badge when it was made hidden; any other one is nobody's here to show or hide.
UIView *ownBadgeOn(SBIconView *iconView) {
    for (UIView *view in iconView.subviews)
        if ([view isKindOfClass:objc_getClass("SBIconBadgeView")] && [view.layer valueForKey:kMadeHidden])
            return view;
    return nil;
}

void addMark(SBIconView *iconView, NSDictionary *settings) {
    SBIconImageView *iconImage = [iconView _iconImageView];
    UIImage *image = [UIImage imageWithContentsOfFile:names::supportFile(kMarkImage)];
    CGRect corner = iconImage.frame;
    UIImageView *mark =
        [[UIImageView alloc] initWithFrame:CGRectMake(corner.size.width - image.size.width, corner.origin.y,
                                                      image.size.width, image.size.height)];
    mark.image = [image imageWithRenderingMode:UIImageRenderingModeAlwaysTemplate];
    // A folder has no image.
    UIColor *own = isOn(keys::marksTakeIconColor, settings) ? [[iconImage contentsImage] mergedColor] : nil;
    mark.tintColor = own ? own : color(keys::markColor, @"red", settings);
    mark.tag = tags::iconMark;
    [iconView addSubview:mark];
    [mark release];
}

// Another badge may have come before the mark is gone; then it stays.
void fadeOutAndRemove(UIView *mark, SBIconView *iconView) {
    [UIView animateWithDuration:animationDuration(kFade)
        animations:^{ mark.alpha = 0; }
        completion:^(BOOL) {
            if ([[iconView icon] badgeValue] == 0) [mark removeFromSuperview];
        }];
}

UIView *markOfApplication(SBApplication *application) {
    return markOn(iconViewOf(identifierOf(application)));
}

} // namespace

// Badge views that are made while the settings are off stay as they are until they are made again.
id hooked::initBadgeView(SBIconBadgeView *self, SEL _cmd) {
    SBIconBadgeView *view = original::initBadgeView(self, _cmd);
    if (view && hidesBadges(readSettings())) {
        view.hidden = YES;
        [view.layer setValue:[NSNumber numberWithBool:YES] forKey:kMadeHidden];
    }
    return view;
}

void hooked::updateAccessoryView(SBIconView *self, SEL _cmd, BOOL animated) {
    original::updateAccessoryView(self, _cmd, animated);
    if (![self respondsToSelector:@selector(icon)]) return;
    SBIcon *icon = [self icon];
    UIView *mark = markOn(self);
    NSDictionary *settings = readSettings();
    const BOOL excluded = badge_per([icon nodeIdentifier], settings);
    const BOOL hides = hidesBadges(settings);
    if (excluded || !hides || !isOn(keys::showsMarks, settings)) {
        // What stood for the badge is gone, so the badge itself shows.
        if (mark || !hides) ownBadgeOn(self).hidden = NO;
        return [mark removeFromSuperview];
    }
    const BOOL hasBadge = [icon badgeValue] != 0;
    if (!mark && hasBadge) {
        addMark(self, settings);
        ownBadgeOn(self).hidden = YES;
    } else if (mark && hasBadge) {
        fade(mark, 1, kFade);
    } else if (mark) {
        fadeOutAndRemove(mark, self);
    }
}

void hooked::willActivate(SBApplication *self, SEL _cmd) {
    original::willActivate(self, _cmd);
    fade(markOfApplication(self), 0, kFade);
}

void hooked::willAnimateDeactivation(SBApplication *self, SEL _cmd, BOOL animated) {
    original::willAnimateDeactivation(self, _cmd, animated);
    fade(markOfApplication(self), 1, kFadeBack);
}

} // namespace pendix
