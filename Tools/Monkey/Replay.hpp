// A device from its boot on, one line of a script at a time, under the watcher's eyes.
#pragma once

#include "Shrink.hpp"
#include "Watcher.hpp"

#include <memory>

namespace sim {

class Replay {
public:
    // Boots; `boot` is the table of `boot`. A device that does not come up is no exception: see broken().
    Replay(const DeviceSetup &setup, const Value &boot);
    ~Replay();

    // What is broken since the boot or the line that came last, as Watcher::look says it.
    const std::vector<std::string> &broken() const { return broken_; }
    // Runs a line. Returns whether the device took it; one that it refuses is no fault.
    bool run(const std::string &line);
    // Ends the device, which may be broken by that as well (a leak, say). No line may follow.
    void end();

    // Only while the device is up.
    LivePhone &phone() { return *phone_; }
    // See Watcher.
    const std::optional<PaneSight> &pane() const { return watcher_->pane(); }

private:
    std::unique_ptr<LivePhone> phone_;
    std::unique_ptr<Watcher> watcher_;
    std::vector<std::string> broken_;
};

// What a sentence about something broken names: what stands before the first colon.
std::string ruleOf(const std::string &sentence);

// Whether the same rule is broken when the lines are done to a fresh device, and by how many of them; as many
// as there are when it takes the device's end.
std::optional<size_t> breaks(const DeviceSetup &setup, const Value &boot, const Lines &lines,
                             const std::string &rule);

} // namespace sim
