// The Settings process as its host drives it.
#pragma once

#include "SettingsLoader.hpp"

#include <UIKit/UIKit.h>

#include <string>

namespace sim {

// Makes the application and its windows: the list of settings, on an iPad beside the page that is open.
void launchSettings(BundleLoader loader);

// Opens the page of the installed entry (the name of its file without the extension) without animation, as
// when the application was left on it. false when there is no such entry.
bool openEntry(const std::string &name);

// The page in front, of whatever is presented.
UIViewController *frontPage();

} // namespace sim
