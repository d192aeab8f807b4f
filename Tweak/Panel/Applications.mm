// Which applications the panel lists.
#include "Tweak/Panel/PanelBuild.h"

#include "Tweak/Core/Applications.h"
#include "Tweak/Core/Names.h"
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
    NSArray *list = isEight() ? [switcher snapshotOfFlattenedArrayOfAppIdentifiersWhichIsOnlyTemporary]
                              : [switcher identifiers];
    return [NSArray arrayWithArray:list];
}

NSString *foregroundIdentifier() {
    SBApplication *top = [(SpringBoard *)[UIApplication sharedApplication] _accessibilityTopDisplay];
    SEL selector = isEight() ? @selector(bundleIdentifier) : @selector(displayIdentifier);
    return [top respondsToSelector:selector] ? identifierOf(top) : @"-";
}

CGImageRef iconImage(SBIconView *view) { return [[[view _iconImageView] contentsImage] CGImage]; }

CFDataRef copyPixels(CGImageRef image) { return CGDataProviderCopyData(CGImageGetDataProvider(image)); }

// The icon of an application that has none of its own. Its pixels are fetched once, however many icons are
// compared with them.
class Placeholder {
public:
    Placeholder() : image_(iconImage(iconViewOf(names::placeholderOwner))) {}
    ~Placeholder() {
        if (pixels_) CFRelease(pixels_);
    }
    Placeholder(const Placeholder &) = delete;
    Placeholder &operator=(const Placeholder &) = delete;

    // Whether the icon looks the same, decided on its pixels.
    BOOL looksLike(CGImageRef icon) {
        if (!icon || !image_) return NO;
        if (icon == image_) return YES;
        if (CGImageGetWidth(icon) != CGImageGetWidth(image_) ||
            CGImageGetHeight(icon) != CGImageGetHeight(image_))
            return NO;
        if (!pixels_) pixels_ = copyPixels(image_);
        CFDataRef pixels = copyPixels(icon);
        BOOL same =
            pixels && pixels_ && CFDataGetLength(pixels) == CFDataGetLength(pixels_) &&
            memcmp(CFDataGetBytePtr(pixels), CFDataGetBytePtr(pixels_), length(CFDataGetLength(pixels))) == 0;
        if (pixels) CFRelease(pixels);
        return same;
    }

private:
    static size_t length(CFIndex bytes) { return static_cast<size_t>(bytes); }

    CGImageRef image_;
    CFDataRef pixels_ = nullptr;
};

BOOL isNeverListed(NSString *identifier) {
    for (NSString *excluded : kNeverListed)
        if ([identifier isEqualToString:excluded]) return YES;
    return NO;
}

// Fills `result` when the application is to be listed.
BOOL find(NSString *identifier, BOOL running, NSString *foreground, Placeholder &placeholder,
          PanelApplication &result) {
    if (hide_per(identifier)) return NO;
    SBApplication *application = applicationOf(identifier);
    if (running && !isEight() && ![application isRunning]) return NO;
    SBIconView *iconView = iconViewOf(identifier);
    SBIcon *icon = [iconView icon];
    if (!icon || [[icon nodeIdentifier] isEqualToString:foreground]) return NO;
    if (!running && [icon badgeValue] == 0) return NO;
    if (isNeverListed(identifier) || placeholder.looksLike(iconImage(iconView))) return NO;
    result = {identifier, application, icon, iconView};
    return YES;
}

} // namespace

std::vector<PanelApplication> listedApplications(BOOL running) {
    Placeholder placeholder;
    NSString *foreground = foregroundIdentifier();
    std::vector<PanelApplication> listed;
    for (NSString *identifier in candidates(running)) {
        PanelApplication application;
        if (find(identifier, running, foreground, placeholder, application)) listed.push_back(application);
    }
    return listed;
}

} // namespace pendix
