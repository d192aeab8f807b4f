// Which applications the panel lists, and their views on the strip.
#include "Tweak/Panel/PanelBuild.h"

#include "Tweak/Core/Applications.h"
#include "Tweak/Core/Names.h"
#include "Tweak/Core/PanelAnchor.h"
#include "Tweak/Core/Screen.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"

#include <string.h>

namespace pendix {

namespace {

// Helpers of the system that stand in its lists without being applications. Its web view service, the fourth
// one, is known by having no icon of its own.
NSString *const kNeverListed[] = {@"com.apple.SiriViewService", @"com.apple.PrintKit.Print-Center",
                                  @"com.apple.uikit.PrintStatus"};

NSArray *candidates(BOOL running) {
    if (!running) return [NSArray arrayWithArray:datas];
    SBAppSwitcherModel *switcher = [objc_getClass("SBAppSwitcherModel") sharedInstance];
    NSArray *list = systemVersion() >= 8.0
                        ? [switcher snapshotOfFlattenedArrayOfAppIdentifiersWhichIsOnlyTemporary]
                        : [switcher identifiers];
    return [NSArray arrayWithArray:list];
}

NSString *foregroundIdentifier() {
    SBApplication *top = [(SpringBoard *)[UIApplication sharedApplication] _accessibilityTopDisplay];
    SEL selector = systemVersion() >= 8.0 ? @selector(bundleIdentifier) : @selector(displayIdentifier);
    return [top respondsToSelector:selector] ? identifierOf(top) : @"-";
}

// Whether two icons look the same, decided on their pixels.
BOOL sameImage(CGImageRef one, CGImageRef other) {
    if (!one || !other) return NO;
    if (one == other) return YES;
    if (CGImageGetWidth(one) != CGImageGetWidth(other) || CGImageGetHeight(one) != CGImageGetHeight(other))
        return NO;
    CFDataRef a = CGDataProviderCopyData(CGImageGetDataProvider(one));
    CFDataRef b = CGDataProviderCopyData(CGImageGetDataProvider(other));
    BOOL same =
        a && b && CFDataGetLength(a) == CFDataGetLength(b) &&
        memcmp(CFDataGetBytePtr(a), CFDataGetBytePtr(b), static_cast<size_t>(CFDataGetLength(a))) == 0;
    if (a) CFRelease(a);
    if (b) CFRelease(b);
    return same;
}

BOOL isNeverListed(NSString *identifier) {
    for (NSString *excluded : kNeverListed)
        if ([excluded isEqualToString:identifier]) return YES;
    return NO;
}

CGImageRef iconImage(SBIconView *view) { return [[[view _iconImageView] contentsImage] CGImage]; }

// Fills `result` when the application is to be listed.
BOOL find(NSString *identifier, BOOL running, NSString *foreground, CGImageRef placeholder,
          PanelApplication &result) {
    if (hide_per(identifier)) return NO;
    SBApplication *application = applicationOf(identifier);
    if (running && systemVersion() < 8.0 && ![application isRunning]) return NO;
    SBIconView *iconView = iconViewOf(identifier);
    SBIcon *icon = [iconView icon];
    if (!icon || [[icon nodeIdentifier] isEqualToString:foreground]) return NO;
    if (!running && [icon badgeValue] == 0) return NO;
    if (isNeverListed(identifier) || sameImage(iconImage(iconView), placeholder)) return NO;
    result = {identifier, application, icon, iconView};
    return YES;
}

} // namespace

void addApplications(PanelBuild &build) {
    CGImageRef placeholder = iconImage(iconViewOf(names::placeholderOwner));
    NSString *foreground = foregroundIdentifier();
    for (NSString *identifier in candidates(build.running)) {
        PanelApplication application;
        if (find(identifier, build.running, foreground, placeholder, application))
            addItem(build, application, build.count++);
    }
    Real content =
        build.paging ? static_cast<Real>(pageCount(build.count, build.layout.rows)) * build.layout.strip.width
                     : 0;
    if (!build.paging && build.count > 0)
        content = unpagedContentWidth({cellFrame(build.layout, 0), cellFrame(build.layout, build.count - 1)});
    build.strip.contentSize =
        CGSizeMake(scrollableWidth(content, build.layout.strip.width), build.layout.strip.height);
}

} // namespace pendix
