// The Settings application of a device, on the device's clock and files.
#pragma once

#include "SimulatedProcess.hpp"
#include "SimulatedScreen.hpp"

#include <memory>

namespace sim {

class SimulatedDevice;

class SettingsProcess : public SimulatedScreen {
public:
    // Starts it on the extension's page. One that was open on the device is closed. Throws BootError.
    explicit SettingsProcess(SimulatedDevice &device);
    ~SettingsProcess() override;
    SettingsProcess(const SettingsProcess &) = delete;
    SettingsProcess &operator=(const SettingsProcess &) = delete;

    int64_t now() const override;
    void advance(int64_t duration) override;
    unsigned generation() const override { return 1; }
    const EventList &events() const override { return events_; }
    void warn(const std::string &text) override;
    const SettingsFile &settings() const override;
    const BootOptions &options() const override;
    const Package &package() const override;
    std::string description() const override;
    const char *reportedWindow() const override { return "app"; }
    std::string shutDown() override;

    // For the device:
    bool running() const { return process_ != nullptr; }
    std::optional<int64_t> next() const override { return next_; }
    int64_t time() const { return now_; }
    // Runs the process alone up to that time, or to where it asks for a restart of the home screen.
    void runTo(int64_t time);
    void close();

private:
    SimulatedProcess &process() override { return *process_; }
    Value perform(const char *request, Object &arguments, bool *died) override;
    const char *processName() const override { return "the Settings application"; }
    void recordCrash(const Ending &ending);

    SimulatedDevice &device_;
    EventList events_;
    std::unique_ptr<SimulatedProcess> process_;
    std::string troubles_, closed_; // what went wrong; why it runs no more
    int64_t now_ = 0;
    std::optional<int64_t> next_;
};

} // namespace sim
