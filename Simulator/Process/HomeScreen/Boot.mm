// From a bare process to a home screen that has finished launching.
#include "Process/Shared/BootDevice.h"
#include "Process/Shared/ExtensionLoader.h"
#include "Process/Shared/Requests.h"

#include "Runtime/Process/Interposed.hpp"
#include "SpringBoard/Applications/Applications.h"
#include "SpringBoard/HomeScreen.h"

namespace sim {

namespace {

HomeScreenOptions homeScreenOptions(const Value &message) {
    HomeScreenOptions options;
    for (const auto &entry : message["applications"].array())
        options.applications.push_back({.identifier = entry["id"].string(),
                                        .name = entry["name"].string(),
                                        .badge = static_cast<int>(entry["badge"].integer()),
                                        .running = entry["running"].boolean(),
                                        .folder = entry["folder"].string(),
                                        .icon = entry["icon"].boolean(),
                                        .snapshot = entry["snapshot"].boolean(),
                                        .dock = entry["dock"].boolean()});
    if (message.has("color_badges")) {
        options.colorBadges = true;
        options.colorBadgesEnabled = message["color_badges"]["enabled"].boolean();
        options.colorBadgesBorders = message["color_badges"]["borders"].boolean();
    }
    options.passcode = message["passcode"].boolean();
    options.passcodeLocked = message["passcode_locked"].boolean();
    return options;
}

bool isRunning(int process) {
    for (SBApplication *application : installedApplications())
        if (record(application).pid == process) return true;
    return false;
}

bool passSignal(int process, int number) {
    bool known = isRunning(process);
    deliverSignal(process, number);
    return known;
}

Value boot(const Value &message) {
    bootDevice(message);
    onSignal(passSignal);
    prepareHomeScreen(homeScreenOptions(message));
    if (message["load_extensions"].boolean()) loadExtensions("com.apple.springboard", "SpringBoard");
    launchHomeScreen();
    return {};
}

} // namespace

std::span<const Request> bootRequests() {
    static const Request requests[] = {{"boot", boot}};
    return requests;
}

} // namespace sim
