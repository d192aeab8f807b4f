// A device: its file system, its processes, the one clock that they share, and what has happened on it. What
// can be done to a screen is done to the home screen's.
#pragma once

#include "SandboxFolder.hpp"
#include "SimulatedProcess.hpp"
#include "SimulatedScreen.hpp"

#include <memory>
#include <string>
#include <vector>

namespace sim {

// What all devices of one run have in common.
struct DeviceSetup {
    Installation installation;
    Package package;
    bool debugger = false;
    std::vector<std::string> extensions; // absolute paths, for every device; see BootOptions
    // Null: each process is started by itself.
    std::shared_ptr<Nurseries> nurseries = std::make_shared<Nurseries>();
};

class SettingsProcess;

class SimulatedDevice : public SimulatedScreen {
public:
    // Boots it; the launch is finished on return. Throws BootError. Without a home screen there are only the
    // files and the clock.
    SimulatedDevice(const DeviceSetup &setup, BootOptions options, bool homeScreen = true);
    ~SimulatedDevice() override;
    SimulatedDevice(const SimulatedDevice &) = delete;
    SimulatedDevice &operator=(const SimulatedDevice &) = delete;

    int64_t now() const override { return now_; }
    void advance(int64_t duration) override;
    // Counts the boots of the home screen.
    unsigned generation() const override { return generation_; }
    const EventList &events() const override { return events_; }
    void warn(const std::string &text) override;
    const SettingsFile &settings() const override { return settings_; }
    const BootOptions &options() const override { return options_; }
    const Package &package() const override { return setup_.package; }
    std::string description() const override;
    const char *reportedWindow() const override { return "overlay"; }
    std::string shutDown() override;

    // Ends the home screen and starts it anew; the rest of the device goes on.
    void respring();

    // What its user sets to be helped; every process hears of it.
    void setAids(const Aids &aids);

    // For the Settings application, of which there is one at most:
    void attach(SettingsProcess *process);
    void detach(SettingsProcess *process);
    ChildProcess::Setup processSetup(const char *program) const;
    BootMessage bootMessage() const;
    // Settings asked for a restart of the home screen at that time, up to which nothing was due there.
    void restartFromSettings(int64_t time);

private:
    void prepareFiles();
    void installExtensions();
    void boot();
    void note(Value event);
    void recordCrash(const Ending &ending);
    void end();
    Value perform(const char *request, Object &arguments, bool *died) override;
    const char *processName() const override { return "the home screen"; }
    void runHome(int64_t time);
    void advanceBoth(int64_t target);
    std::optional<int64_t> next() const override { return next_; }
    SimulatedProcess &process() override { return *home_; }

    DeviceSetup setup_;
    BootOptions options_; // applications, lock, orientation and aids as they are by now
    SandboxFolder root_;
    SettingsFile settings_;
    EventList events_;
    bool homeScreen_;
    std::unique_ptr<SimulatedProcess> home_;
    SettingsProcess *settingsProcess_ = nullptr; // owned by whoever opened it
    std::string troubles_;                       // of processes that have ended
    int64_t now_ = 0;
    std::optional<int64_t> next_;
    unsigned generation_ = 0;
};

} // namespace sim
