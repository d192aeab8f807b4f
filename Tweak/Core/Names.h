// Names that the extension shares with the system, with its package and with its settings pane.
#pragma once

#import <Foundation/Foundation.h>

namespace pendix::names {

inline NSString *const settingsFile = @"/var/mobile/Library/Preferences/org.quillhub.PendixSettings.plist";
// The extension's pictures and language tables.
inline NSString *const supportFolder = @"/Library/Application Support/Pendix/";
inline NSString *const paneIcon =
    @"/Library/PreferenceBundles/PendixSettings.bundle/PendixSettingsIcon@2x.png";

inline NSString *const activatorListener = @"org.quillhub.Pendix";
inline NSString *const statusBarItem = @"org.quillhub.pendix";

// Has no icon of its own: what its icon shows is the placeholder.
inline NSString *const placeholderOwner = @"com.apple.WebViewService";

// Status-bar images, and so the indicator names by which the item is recognised.
inline NSString *const badgeImage = @"Pendix";
inline NSString *const switcherImage = @"PendixSwitcher";

// The path of a file of the extension's own folder.
inline NSString *supportFile(NSString *name) { return [supportFolder stringByAppendingString:name]; }

} // namespace pendix::names
