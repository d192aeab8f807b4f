// From a bare process to the Settings application, opened on the page of one entry.
#include "Preferences/Application/SettingsApplication.h"
#include "Preferences/Services/InstalledApplications.h"
#include "Process/Shared/BootDevice.h"
#include "Process/Shared/ExtensionLoader.h"
#include "Process/Shared/Requests.h"
#include "SettingsRequests.h"

namespace sim {

namespace {

std::vector<InstalledApplication> applications(const Value &message) {
    std::vector<InstalledApplication> result;
    for (const auto &entry : message["applications"].array())
        result.push_back({entry["id"].string(), entry["name"].string(), entry["icon"].boolean()});
    return result;
}

// {…as for the home screen, "entry": name of the entry to open, which may be absent}
Value boot(const Value &message) {
    bootDevice(message);
    setInstalledApplications(applications(message));
    if (message["load_extensions"].boolean()) loadExtensions("com.apple.Preferences", "Preferences");
    launchSettings(loadLibrary);
    if (message.has("entry") && !openEntry(message["entry"].string()))
        throw BadRequest("Settings has no page '" + message["entry"].string() + "' that can be opened");
    return {};
}

} // namespace

std::vector<std::span<const Request>> ownRequests() {
    static const Request requests[] = {{"boot", boot}};
    return {requests, pageRequests(), placeRequests(), typingRequests()};
}

void addOwnState(Object &) {}

} // namespace sim
