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
#include "UIKit/Application/ApplicationState.h"

#include <stdexcept>

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

void hideClasses(const Array &names) {
    for (const auto &name : names) {
        if (!objc_lookUpClass(name.string().c_str()))
            recordWarning("no class '" + name.string() + "' to hide");
        hideClass(name.string());
    }
}

void forEachMethod(const Array &names, bool (*apply)(const std::string &), const char *what) {
    for (const auto &name : names) try {
            if (!apply(name.string())) recordWarning("no method '" + name.string() + "' to " + what);
        } catch (const std::invalid_argument &error) {
            throw BadRequest(error.what());
        }
}

void failWrites(const Array &failures) {
    for (const auto &entry : failures) {
        WriteFailure failure{.prefix = entry["path"].string(),
                             .error = static_cast<int>(entry["error"].integer()),
                             .call = {}};
        if (entry["call"].isString())
            failure.call = entry["call"].string() == "rename" ? WriteCall::rename : WriteCall::open;
        failure.first = static_cast<uint64_t>(entry["first"].integer());
        if (entry["times"].isInteger()) failure.times = static_cast<uint64_t>(entry["times"].integer());
        addWriteFailure(std::move(failure));
    }
}

} // namespace

void bootDevice(const Value &message) {
    setSandboxRoot(message["root"].string());
    setPlatformFolder(message["platform"].string());
    setDevice(message["device"]);
    setTime(message);
    installTimers();
    installRunLoop();
    installPropertyLists();
    watchFile(message["count_reads_of"].string());
    onRespringRequest(askForRespring);
    applyAvailability(device().version);
    hideClasses(message["hide_classes"].array());
    forEachMethod(message["hide_methods"].array(), hideMethod, "hide");
    forEachMethod(message["nil_methods"].array(), silenceMethod, "silence");
    failWrites(message["fail_writes"].array());
}

} // namespace sim
