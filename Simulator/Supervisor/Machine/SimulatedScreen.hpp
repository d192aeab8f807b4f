// One process of a device as whoever holds the device knows it: a screen that can be touched and looked at.
#pragma once

#include "EventList.hpp"
#include "SettingsFile.hpp"
#include "Supervisor/Boot/BootOptions.hpp"
#include "Supervisor/Boot/Package.hpp"
#include "Supervisor/Protocol/PictureMemory.hpp"

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace sim {

class SimulatedProcess;

class SimulatedScreen {
public:
    virtual ~SimulatedScreen() = default;

    // Nanoseconds since the device's first boot.
    virtual int64_t now() const = 0;
    // Lets that much time pass on the whole device, in nanoseconds.
    virtual void advance(int64_t duration) = 0;
    // Lets time pass until nothing that ends by itself is under way in this process, and returns how much.
    // Throws SettleError when more than `limit` would pass.
    int64_t settle(int64_t limit);

    // Asks the process to do something. A crash becomes an event. Throws RequestError.
    Value act(const char *request, Object arguments = {});
    // The same for a question, which a crash leaves without an answer: that is a RequestError.
    Value ask(const char *request, Object arguments = {});
    // How often it was asked to do something.
    uint64_t acts() const { return acts_; }
    // The screen at this moment, upright: on its side it is as wide as it was high.
    render::Bitmap picture();
    // The same incrementally: `picture` is what this gave the last time, or an empty one, and is updated
    // where it has changed. Returns the areas that did.
    std::vector<PictureArea> refresh(render::Bitmap &picture);
    // How the interface was turned in what refresh() gave last: 1 portrait, 2 upside down, 3 landscape with
    // the home button on the right, 4 with it on the left.
    int interfaceOrientation() const { return interfaceOrientation_; }
    // Counts the starts of the process: what was seen of one says nothing of the next.
    virtual unsigned generation() const = 0;

    virtual const EventList &events() const = 0;
    virtual void warn(const std::string &text) = 0;
    virtual const SettingsFile &settings() const = 0;
    virtual const BootOptions &options() const = 0;
    virtual const Package &package() const = 0;
    // "iPhone 6, iOS 8.1"
    virtual std::string description() const = 0;
    // The window whose views people ask for first: "overlay", "app".
    virtual const char *reportedWindow() const = 0;

    // Ends what this stands for; afterwards it is of no further use. Returns what went wrong at the end
    // (leaks, say); empty when nothing did.
    virtual std::string shutDown() = 0;

protected:
    // `died` tells whether the process crashed over it; what it gives then means nothing.
    virtual Value perform(const char *request, Object &arguments, bool *died) = 0;
    // What a message calls the process: "the home screen".
    virtual const char *processName() const = 0;
    // When something is due next in the process.
    virtual std::optional<int64_t> next() const = 0;
    // The process that draws it. Only while it runs.
    virtual SimulatedProcess &process() = 0;

private:
    uint64_t acts_ = 0;
    int interfaceOrientation_ = 1;
    unsigned drawn_ = 0; // the generation whose last drawing refresh() has seen; 0: none
};

struct SettleError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

} // namespace sim
