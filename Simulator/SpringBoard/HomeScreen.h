// The home-screen process as its host drives it: what a person, the system and other processes do to it.
// Everything acts at once, on the main thread, and returns when the platform's own methods have run.
#pragma once

#include "Runtime/Files/PlatformFiles.hpp"
#include "Runtime/Values/Boot.hpp"

#include <UIKit/UIKit.h>

#include <optional>
#include <string>
#include <vector>

@class SBIconView;

namespace sim {

// Makes the classes of this system version, the application object and the models. Before any library is
// loaded.
void prepareHomeScreen(const SharedOptions &options);
// The launch: `applicationDidFinishLaunching:`, then windows, status bar and icons, then the badges in list
// order.
void launchHomeScreen();

// Badge of an application; 0 clears. false when there is no such application.
bool setBadge(const std::string &identifier, int value);
// Brings an application to the front. false when there is no such application.
bool openApplication(const std::string &identifier);
// One click, and a double one that no single click goes before. On a dark device they turn the display on.
void clickHomeButton();
void clickHomeButtonTwice();
// nothing while the home screen or the lock screen is in front.
std::optional<std::string> foregroundApplication();

// Turning the display off locks the device, which shows the lock screen when it is on again.
void setDisplay(bool on);
// The button at the device's edge: off, or on again.
void pressLockButton();
// Out of the lock screen, with the passcode if there is one. Nothing happens while it is not to be seen.
void unlockDevice();
// A notification's banner slides in; the text is the message of the first application that has messages.
void presentBanner(const std::string &text);
// An event of the fingerprint sensor; see Platform/BiometricKit. false on a device without a sensor.
bool sendFingerEvent(unsigned event);
// The switcher's list, most recent first.
std::vector<std::string> switcherApplications();
// nil when the application has no icon on the home screen.
SBIconView *homeScreenIconView(const std::string &identifier);
// The status bar changes its style: items are laid out anew, and what others put on their layers is gone.
void restyleStatusBar();

// The status-bar library's item of that identifier: {present, visible, image}; and its view, nil when the
// item is invisible or absent.
Value statusBarItem(const std::string &identifier);
UIView *statusBarItemView(const std::string &identifier);

// Sends the assigned event to the gesture launcher's listener. false when no listener has that name.
bool sendActivatorEvent(const std::string &listener);

// A process of the simulated device got a signal (`kill`): a running application ends on 15 and 9.
void deliverSignal(int pid, int number);

} // namespace sim
