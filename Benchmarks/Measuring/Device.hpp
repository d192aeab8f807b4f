// A device whose process is the benchmark's own: the requests that a supervisor would send are called, so
// that what is measured is the process's work and nothing else.
#pragma once

#include "Supervisor/Machine/SimulatedDevice.hpp"

namespace bench {

class Device {
public:
    // Lays out the device's files; `options` are those that scripts give to `boot`. Throws
    // std::runtime_error.
    explicit Device(const sim::Value &options);

    // From a bare process to one that has finished launching. Once a process.
    void boot();

    // What a supervisor may ask; see docs/simulator.md. Throws what the request throws.
    sim::Value ask(const char *request, sim::Object arguments = {});
    // Virtual seconds.
    void advance(double seconds);
    // To the next whole virtual second, where what repeats every second stands in every round.
    void advanceToSecond();
    // Until nothing moves, at most ten virtual seconds.
    void settle();

    // A finger at a place {"x", "y"}; `tap` is down, a tenth of a second, and up.
    void down(const sim::Value &place);
    void up();
    void tap(const sim::Value &place);

    // The middle of the status-bar item, and of the first overlay view of that tag. Throws without one.
    sim::Value indicator();
    sim::Value overlayView(int tag);
    // How many overlay views have that tag.
    size_t overlayViews(int tag);

    // Where the settings file lies on this machine.
    std::filesystem::path settingsFile() const;

private:
    sim::DeviceSetup setup_;
    sim::BootOptions options_;
    sim::SandboxFolder root_;
};

} // namespace bench
