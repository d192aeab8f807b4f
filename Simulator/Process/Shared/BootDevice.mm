#include "BootDevice.h"

#include "Requests.h"
#include "Session.hpp"

#include "Runtime/Files/FoundationFiles.hpp"
#include "Runtime/Files/PlatformFiles.hpp"
#include "Runtime/Files/Sandbox.hpp"
#include "Runtime/Objc/Availability.hpp"
#include "Runtime/Objc/MethodFaults.hpp"
#include "Runtime/Process/Device.hpp"
#include "Runtime/Process/Events.hpp"
#include "Runtime/Process/Interposed.hpp"
#include "Runtime/Time/Clock.hpp"
#include "Runtime/Time/Timers.hpp"
#include "UIKit/Accessibility/AidSettings.h"
#include "UIKit/Application/ApplicationState.h"

#include <stdexcept>

namespace sim {

namespace {

void setDevice(const DeviceProfile &profile) {
    const auto &version = profile.version;
    device() = {.name = profile.name,
                .machine = profile.machine,
                .width = profile.width,
                .height = profile.height,
                .scale = profile.scale,
                .pad = profile.pad,
                .touchSensor = profile.touchSensor,
                .reachability = profile.reachability,
                .version = {std::stoi(version), std::stoi(version.substr(version.find('.') + 1))},
                .language = profile.language};
}

void setTime(const BootMessage &message) {
    Clock::shared().start(message.now);
    setEventEpoch(0);
    setWallClock(message.wallClock);
    publishTime(Clock::shared().now());
}

void hideClasses(const std::vector<std::string> &names) {
    for (const auto &name : names) {
        if (!objc_lookUpClass(name.c_str())) recordWarning("no class '" + name + "' to hide");
        hideClass(name);
    }
}

void forEachMethod(const std::vector<std::string> &names, bool (*apply)(const std::string &),
                   const char *what) {
    for (const auto &name : names) try {
            if (!apply(name)) recordWarning("no method '" + name + "' to " + what);
        } catch (const std::invalid_argument &error) {
            throw BadRequest(error.what());
        }
}

void failWrites(const std::vector<FailingWrites> &failures) {
    for (const auto &entry : failures) {
        WriteFailure failure{.prefix = entry.path, .error = errorNumber(entry.error).value_or(0), .call = {}};
        if (!entry.call.empty()) failure.call = entry.call == "rename" ? WriteCall::rename : WriteCall::open;
        failure.first = static_cast<uint64_t>(entry.first);
        if (entry.times) failure.times = static_cast<uint64_t>(*entry.times);
        addWriteFailure(std::move(failure));
    }
}

} // namespace

void bootDevice(const BootMessage &message) {
    setSandboxRoot(message.root);
    setPlatformFolder(message.platform);
    setDevice(message.device);
    setTime(message);
    watchFile(message.countedFile);
    onRespringRequest(askForRespring);
    applyAvailability(device().version);
    setAids(message.aids);
    hideClasses(message.hiddenClasses);
    forEachMethod(message.hiddenMethods, hideMethod, "hide");
    forEachMethod(message.silencedMethods, silenceMethod, "silence");
    failWrites(message.writeFailures);
}

} // namespace sim
