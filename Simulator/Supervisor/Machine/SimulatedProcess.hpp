// A simulated process as one that answers requests and tells what happens in it.
#pragma once

#include "ChildProcess.hpp"

#include <functional>
#include <optional>
#include <stdexcept>

namespace sim {

// The process refused a request; the text is its answer.
struct RequestError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Thrown when the process is gone before it has answered.
struct ProcessDied {
    Ending ending;
};

struct Reply {
    Value result;
    int64_t now = 0;             // its virtual time, nanoseconds
    std::optional<int64_t> next; // when something is due next
    bool respring = false;       // it asked for a restart of the home screen
    bool locked = false;         // it is locked by its passcode
};

class SimulatedProcess {
public:
    using EventListener = std::function<void(Value)>;

    // `listener` gets the process's events in order, during request().
    SimulatedProcess(const ChildProcess::Setup &setup, EventListener listener);

    // Throws RequestError or ProcessDied; after the latter the process is of no further use.
    Reply request(const char *name, Object arguments = {});

    render::Bitmap picture() const { return child_.picture(); }
    std::vector<PictureArea> refresh(render::Bitmap &picture, std::span<const PictureArea> changed) {
        return child_.refresh(picture, changed);
    }
    Ending end() { return child_.end(); }

private:
    ChildProcess child_;
    EventListener listener_;
};

} // namespace sim
