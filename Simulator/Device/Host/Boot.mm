// From a bare process to a home screen that has finished launching.
#include "ExtensionLoader.h"
#include "Requests.h"
#include "Session.hpp"

#include "Runtime/Files/FoundationFiles.hpp"
#include "Runtime/Files/Sandbox.hpp"
#include "Runtime/Objc/Availability.hpp"
#include "Runtime/Process/Device.hpp"
#include "Runtime/Process/Events.hpp"
#include "Runtime/Process/Interposed.hpp"
#include "Runtime/Time/Clock.hpp"
#include "Runtime/Time/Timers.hpp"
#include "SpringBoard/Applications/Applications.h"
#include "SpringBoard/HomeScreen.h"
#include "UIKit/Application/ApplicationState.h"

namespace sim {

namespace {

void setDevice(const Value &profile) {
    const auto &version = profile["version"].string();
    device() = {.name = profile["name"].string(),
                .machine = profile["machine"].string(),
                .width = profile["width"].number(),
                .height = profile["height"].number(),
                .scale = profile["scale"].number(),
                .pad = profile["pad"].boolean(),
                .touchSensor = profile["touch_sensor"].boolean(),
                .reachability = profile["reachability"].boolean(),
                .version = {std::stoi(version), std::stoi(version.substr(version.find('.') + 1))},
                .language = profile["language"].string()};
}

void setTime(const Value &message) {
    Clock::shared().start(message["now"].integer());
    setEventEpoch(0);
    setWallClock(message["wall_clock"].number());
    publishTime(Clock::shared().now());
}

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

void hideClasses(const Array &names) {
    for (const auto &name : names) {
        if (!objc_lookUpClass(name.string().c_str()))
            recordWarning("no class '" + name.string() + "' to hide");
        hideClass(name.string());
    }
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
    setSandboxRoot(message["root"].string());
    setPlatformFolder(message["platform"].string());
    setDevice(message["device"]);
    setTime(message);
    installTimers();
    installRunLoop();
    installPropertyLists();
    watchFile(message["count_reads_of"].string());
    onRespringRequest(askForRespring);
    onSignal(passSignal);
    applyAvailability(device().version);
    hideClasses(message["hide_classes"].array());
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
