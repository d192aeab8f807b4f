// A booted home screen, and ways to watch what it does.
#pragma once

#include "Runtime/Objc/Methods.hpp"
#include "Runtime/Process/Device.hpp"
#include "Runtime/Process/Events.hpp"
#include "Runtime/Time/Clock.hpp"
#include "SpringBoard/HomeScreen.h"

#include <SpringBoard/SBApplication.h>
#include <SpringBoard/SBIcon.h>
#include <SpringBoard/SpringBoard.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace harness {

// Blocks, timers, property lists, the run loop: first in the main of a program that has the extension's units
// in it.
void preparePlatform();

// "iPhone 4S", "iPhone 5", "iPhone 6", "iPhone 6 Plus", "iPad 2" or "iPad Air".
sim::Device profile(const std::string &name, sim::Version version = {8, 1});

// Mail and Phone in the dock, "org.example.1" … up to `plain` on the pages, two more in the folder "Social".
sim::SharedOptions applications(int plain = 6);

// Boots and lets everything that is due at once happen. The events of the boot are gone.
void boot(const sim::Device &device = profile("iPhone 6"),
          const sim::SharedOptions &options = applications());

// What a library would do while it is loaded, between preparation and launch.
void boot(const sim::Device &device, const sim::SharedOptions &options, void (*load)());

void wait(double seconds);

SBIconView *iconView(const std::string &identifier);
SBIconView *folderView();
SBApplication *application(const std::string &identifier);
// nil when the view shows none.
SBIconBadgeView *badgeOf(SBIconView *view);

// "kind" or "kind key=value key=value" of the events since the last call; other kinds than `kinds` are left
// out.
std::vector<std::string> events(const std::vector<std::string> &kinds);

inline std::string text(NSString *string) { return string ? [string UTF8String] : ""; }

} // namespace harness
