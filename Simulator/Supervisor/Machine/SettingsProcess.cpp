#include "SettingsProcess.hpp"

#include "BootMessage.hpp"
#include "CrashText.hpp"
#include "Interrupt.hpp"
#include "Runtime/Values/Nanoseconds.hpp"
#include "SimulatedDevice.hpp"

#include <algorithm>
#include <iostream>
#include <utility>

namespace sim {

SettingsProcess::SettingsProcess(SimulatedDevice &device) : device_(device), now_(device.now()) {
    device.attach(this);
    process_ = std::make_unique<SimulatedProcess>(device.processSetup("pendix-settings"),
                                                  [this](Value event) { events_.add(std::move(event)); });
    try {
        BootMessage message = device.bootMessage();
        message.entry = package().settingsEntry;
        next_ = process_->request("boot", toValue(message).object()).next;
    } catch (const ProcessDied &death) {
        recordCrash(death.ending);
        device.detach(this);
        throw BootError("the Settings application died while it started: " + death.ending.reason());
    } catch (const RequestError &error) {
        close();
        device.detach(this);
        throw BootError(std::string("open_settings: ") + error.what());
    }
}

SettingsProcess::~SettingsProcess() {
    close();
    device_.detach(this);
}

int64_t SettingsProcess::now() const { return device_.now(); }
void SettingsProcess::advance(int64_t duration) { device_.advance(duration); }
const SettingsFile &SettingsProcess::settings() const { return device_.settings(); }
const BootOptions &SettingsProcess::options() const { return device_.options(); }
const Package &SettingsProcess::package() const { return device_.package(); }
std::string SettingsProcess::description() const { return "Settings on " + device_.description(); }

void SettingsProcess::warn(const std::string &text) {
    events_.add(toSeconds(now()), "warning", {{"text", text}});
}

void SettingsProcess::recordCrash(const Ending &ending) {
    process_.reset();
    next_.reset();
    now_ = std::max(now_, ending.time);
    closed_ = "it crashed";
    std::string stack = crashText(ending.crashReport);
    std::cerr << "The Settings application crashed at " << toSeconds(now_) << " s: " << ending.reason()
              << '\n'
              << stack << ending.errorOutput << std::flush;
    events_.add(toSeconds(now_), "crash", {{"signal", ending.reason()}, {"stack", stack}});
}

Value SettingsProcess::perform(const char *request, Object &arguments, bool *died) {
    *died = false;
    if (!process_) throw RequestError("the Settings application does not run: " + closed_);
    try {
        Reply reply = process_->request(request, std::move(arguments));
        now_ = reply.now;
        next_ = reply.next;
        if (reply.respring) device_.restartFromSettings(now_);
        return std::move(reply.result);
    } catch (const ProcessDied &death) {
        *died = true;
        recordCrash(death.ending);
        if (interrupted()) throw RequestError("interrupted");
        return {};
    }
}

void SettingsProcess::runTo(int64_t time) { act("advance", {{"to", time}}); }

void SettingsProcess::close() {
    if (!process_) return;
    troubles_ += troublesOf(process_->end(), "The Settings application");
    process_.reset();
    next_.reset();
    closed_ = "it was closed";
}

std::string SettingsProcess::shutDown() {
    close();
    return std::exchange(troubles_, "");
}

} // namespace sim
