// From a bare process to the Settings application, opened on the page of one entry.
#include "Preferences/Application/SettingsApplication.h"
#include "Preferences/Services/InstalledApplications.h"
#include "Process/Shared/BootDevice.h"
#include "Process/Shared/ExtensionLoader.h"
#include "Process/Shared/Requests.h"
#include "SettingsRequests.h"

namespace sim {

namespace {

std::vector<InstalledApplication> applications(const BootMessage &message) {
    std::vector<InstalledApplication> result;
    for (const auto &application : message.applications)
        result.push_back({application.identifier, application.name, application.icon});
    return result;
}

Value boot(const Value &arguments) {
    BootMessage message = readBootMessage(arguments);
    bootDevice(message);
    setInstalledApplications(applications(message));
    if (message.extension) loadExtensions("com.apple.Preferences", "Preferences");
    launchSettings(loadLibrary);
    if (message.entry && !openEntry(*message.entry))
        throw BadRequest("Settings has no page '" + *message.entry + "' that can be opened");
    return {};
}

} // namespace

std::vector<std::span<const Request>> ownRequests() {
    static const Request requests[] = {{"boot", boot}};
    return {requests, pageRequests(), pageInspectionRequests(), placeRequests(), typingRequests()};
}

void addOwnState(Object &) {}

} // namespace sim
