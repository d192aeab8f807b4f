// Icons, badges, the switcher's list and the stock application Settings, which every device has.
#include "Probe/Question.h"

#include <SpringBoard/SBApplication.h>
#include <SpringBoard/SBIcon.h>
#include <SpringBoard/SBLockScreen.h>
#include <UIKit/UIKit.h>

namespace probe {

namespace {

NSString *const kSettings = @"com.apple.Preferences";

SBIcon *icon() {
    SBIconController *controller = [objc_getClass("SBIconController") sharedInstance];
    return [[controller model] leafIconForIdentifier:kSettings];
}

SBIconView *iconView() {
    return [[objc_getClass("SBIconViewMap") homescreenMap] mappedIconViewForIcon:icon()];
}

SBApplication *application() {
    id controller = [objc_getClass("SBApplicationController") sharedInstance];
    if ([controller respondsToSelector:@selector(applicationWithBundleIdentifier:)])
        return [controller applicationWithBundleIdentifier:kSettings];
    return [controller respondsToSelector:@selector(applicationWithDisplayIdentifier:)]
               ? [controller applicationWithDisplayIdentifier:kSettings]
               : nil;
}

id iconSize() { return size([objc_getClass("SBIconView") defaultIconSize]); }

id iconClass() { return className(icon()); }

id iconIdentifier() {
    NSString *identifier = [icon() nodeIdentifier];
    return identifier ? identifier : absent();
}

id iconViewBounds() {
    SBIconView *view = iconView();
    return view ? rectangle(view.bounds) : absent();
}

id imageViewFrame() {
    SBIconImageView *view = [iconView() _iconImageView];
    return view ? rectangle([view convertRect:view.bounds toView:iconView()]) : absent();
}

id image() {
    UIImage *image = [[iconView() _iconImageView] contentsImage];
    return image ? size(image.size) : absent();
}

id badgeFont() {
    UIFont *font = [objc_getClass("SBIconBadgeView") _textFont];
    return font ? number(font.pointSize) : absent();
}

id badgeBackground() {
    UIImage *image = [objc_getClass("SBIconBadgeView") _checkoutBackgroundImage];
    return image ? size(image.size) : absent();
}

id applicationClass() { return className(application()); }

id badge() {
    // Settings may carry one: its class is asked for, not its value.
    id badge = [application() badgeNumberOrString];
    return badge ? flag([badge isKindOfClass:[NSNumber class]] || [badge isKindOfClass:[NSString class]])
                 : absent();
}

id snapshotPath() {
    NSString *path = [application() _baseAppSnapshotPath];
    return path ? path : absent();
}

// Whether the variable holds a list.
id held(const char *variable) {
    id model = [objc_getClass("SBAppSwitcherModel") sharedInstance];
    void *value = nullptr;
    if (!model || !object_getInstanceVariable(model, variable, &value)) return absent();
    return flag([static_cast<id>(value) isKindOfClass:[NSArray class]]);
}

id identifiers() { return held("_recentDisplayIdentifiers"); }

id layouts() { return held("_recentDisplayLayouts"); }

id lockScreen() {
    return className([[objc_getClass("SBLockScreenManager") sharedInstance] lockScreenViewController]);
}

// What finding the icon, its view and the application takes.
constexpr Member kModel = {"SBIconController", "-model"}, kIcon = {"SBIconModel", "-leafIconForIdentifier:"},
                 kView = {"SBIconViewMap", "-mappedIconViewForIcon:"},
                 kImageView = {"SBIconView", "-_iconImageView"},
                 kApplications = {"SBApplicationController", "+sharedInstance"};

} // namespace

std::span<const Question> homeScreenQuestions() {
    static const Question all[] = {
        {"icon.size", iconSize, {{"SBIconView", "+defaultIconSize"}}},
        {"icon.class", iconClass, {kModel, kIcon}},
        {"icon.identifier", iconIdentifier, {kModel, kIcon, {"SBIcon", "-nodeIdentifier"}}},
        {"icon.view.bounds", iconViewBounds, {kModel, kIcon, kView}},
        {"icon.image.frame", imageViewFrame, {kModel, kIcon, kView, kImageView}},
        {"icon.image.size", image, {kIcon, kView, kImageView, {"SBIconImageView", "-contentsImage"}}},
        {"badge.font.size", badgeFont, {{"SBIconBadgeView", "+_textFont"}}},
        {"badge.background.size", badgeBackground, {{"SBIconBadgeView", "+_checkoutBackgroundImage"}}},
        {"application.settings.class", applicationClass, {kApplications}},
        {"application.settings.badge", badge, {kApplications, {"SBApplication", "-badgeNumberOrString"}}},
        {"application.settings.snapshots",
         snapshotPath,
         {kApplications, {"SBApplication", "-_baseAppSnapshotPath"}}},
        {"switcher.holds_identifiers", identifiers, {{"SBAppSwitcherModel", "+sharedInstance"}}},
        {"switcher.holds_layouts", layouts, {{"SBAppSwitcherModel", "+sharedInstance"}}},
        {"lock.view_controller",
         lockScreen,
         {{"SBLockScreenManager", "+sharedInstance"}, {"SBLockScreenManager", "-lockScreenViewController"}}}};
    return all;
}

} // namespace probe
