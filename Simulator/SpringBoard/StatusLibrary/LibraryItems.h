// The status-bar library's items: what all item objects of one identifier share, and how it reaches the bar.
#pragma once

#include "UIKit/StatusBar/StatusBarState.h"

#include <StatusBar/LSStatusBarItem.h>

#include <optional>
#include <string>

namespace sim {

struct LibraryItem {
    std::string identifier;
    StatusBarAlignment alignment = 0;
    std::optional<bool> visible;    // unset counts as visible
    NSString *imageName = nil;      // retained
    UIStatusBarItem *barItem = nil; // retained
    size_t owners = 0;              // item objects of this identifier

    bool shown() const { return visible.value_or(true); }
};

// The one of that identifier, made when there is none. The reference holds until releaseLibraryItem.
LibraryItem &retainLibraryItem(const std::string &identifier, StatusBarAlignment alignment);
// The last release takes the item off the bar.
void releaseLibraryItem(LibraryItem &item);
// nullptr when there is none.
LibraryItem *findLibraryItem(const std::string &identifier);
LibraryItem *findLibraryItem(UIStatusBarItem *barItem);
// Puts the item into the bar or takes it off, and has what is there drawn anew.
void showLibraryItem(LibraryItem &item);

// The image of that name as a bar of that style shows it; nil, and an event, when the system has no such
// file.
UIImage *libraryImage(NSString *name, UIStatusBarForegroundStyleAttributes *style);

} // namespace sim
