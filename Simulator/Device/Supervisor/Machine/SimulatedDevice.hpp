// A device: its file system, its processes, the one clock that they share, and what has happened on it.
#pragma once

#include "Device/Supervisor/Boot/BootOptions.hpp"
#include "Device/Supervisor/Boot/Package.hpp"
#include "EventList.hpp"
#include "SandboxFolder.hpp"
#include "SettingsFile.hpp"
#include "SimulatedProcess.hpp"

#include <memory>
#include <string>

namespace sim {

// What all devices of one run have in common.
struct DeviceSetup {
    Installation installation;
    Package package;
    bool debugger = false;
};

class SimulatedDevice {
public:
    // Boots it; the launch is finished on return. Throws BootError.
    SimulatedDevice(const DeviceSetup &setup, BootOptions options);
    ~SimulatedDevice();
    SimulatedDevice(const SimulatedDevice &) = delete;
    SimulatedDevice &operator=(const SimulatedDevice &) = delete;

    // Nanoseconds since the first boot.
    int64_t now() const { return now_; }
    // Lets that much time pass, in nanoseconds.
    void advance(int64_t duration);
    // Lets time pass until nothing that ends by itself is under way, and returns how much. Throws SettleError
    // when more than `limit` would pass.
    int64_t settle(int64_t limit);

    // Asks the home screen to do something. A crash becomes an event and another boot. Throws RequestError.
    Value act(const char *request, Object arguments = {});
    // The same for a question, which a crash leaves without an answer: that is a RequestError.
    Value ask(const char *request, Object arguments = {});
    // The screen at this moment.
    render::Bitmap picture();

    // Ends the home screen and starts it anew; the rest of the device goes on.
    void respring();
    // Counts the boots: what was seen of one home screen says nothing of the next.
    unsigned generation() const { return generation_; }

    const EventList &events() const { return events_; }
    void warn(const std::string &text);
    const SettingsFile &settings() const { return settings_; }
    const BootOptions &options() const { return options_; }
    const Package &package() const { return setup_.package; }
    // "iPhone 6, iOS 8.1"
    std::string description() const;

    // Ends the processes; afterwards the device is of no further use. Returns what went wrong in them at the
    // end (leaks, say); empty when nothing did.
    std::string shutDown();

private:
    void prepareFiles();
    void boot();
    void note(Value event);
    void recordCrash(const Ending &ending);
    void end();
    Value perform(const char *request, Object &arguments, bool *died);

    DeviceSetup setup_;
    BootOptions options_; // the applications as they are by now
    SandboxFolder root_;
    SettingsFile settings_;
    EventList events_;
    std::unique_ptr<SimulatedProcess> home_;
    std::string troubles_; // of processes that have ended
    int64_t now_ = 0;
    std::optional<int64_t> next_;
    unsigned generation_ = 0;
};

struct SettleError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

} // namespace sim
