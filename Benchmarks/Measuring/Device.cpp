#include "Device.hpp"

#include "Process/Shared/Requests.h"
#include "Runtime/Process/Events.hpp"
#include "Runtime/Time/Clock.hpp"
#include "Supervisor/Machine/BootMessage.hpp"
#include "Supervisor/Protocol/Descriptors.hpp"
#include "Supervisor/Protocol/SharedTime.hpp"

#include <unistd.h>

namespace bench {

namespace {

sim::DeviceSetup findSetup() {
    sim::DeviceSetup setup{.installation = sim::findInstallation(), .package = {}};
    setup.package = sim::readPackage(setup.installation.manifest);
    return setup;
}

// The process tells its time to whoever started it; here nobody looks.
void openTimeDescriptor() {
    int descriptor = sim::SharedTime::create();
    if (descriptor != sim::kTimeDescriptor) dup2(descriptor, sim::kTimeDescriptor);
}

sim::Value middle(const sim::Value &rect) {
    return sim::Object{{"x", rect["x"].number() + rect["w"].number() / 2},
                       {"y", rect["y"].number() + rect["h"].number() / 2}};
}

sim::Object overlayQuery(int tag) { return {{"query", sim::Object{{"window", "overlay"}, {"tag", tag}}}}; }

} // namespace

Device::Device(const sim::Value &options)
    : setup_(findSetup()), options_(sim::readBootOptions(
                               options, sim::readFile(setup_.installation.platform / "applications.json"))),
      root_(options_.root) {
    root_.install(setup_.installation.stageRoot, options_.missingFiles);
    if (options_.settings) sim::SettingsFile(settingsFile()).write(*options_.settings);
    openTimeDescriptor();
}

void Device::boot() {
    sim::BootMessage message = sim::bootMessage(setup_, options_, root_.path(), 0);
    message.entry = setup_.package.settingsEntry;
    ask("boot", sim::toValue(message).object());
}

sim::Value Device::ask(const char *request, sim::Object arguments) {
    sim::Value result = sim::handleRequest(request, std::move(arguments));
    sim::takeEvents();
    return result;
}

void Device::advance(double seconds) {
    ask("advance", {{"to", sim::Clock::shared().now() + sim::fromSeconds(seconds)}});
}

void Device::advanceToSecond() {
    ask("advance", {{"to", (sim::Clock::shared().now() / sim::kSecond + 1) * sim::kSecond}});
}

void Device::settle() {
    for (double waited = 0; waited < 10 && !ask("busy").array().empty(); waited += 0.1) advance(0.1);
}

void Device::down(const sim::Value &place) { ask("touch_down", {{"x", place["x"]}, {"y", place["y"]}}); }
void Device::up() { ask("touch_up"); }

void Device::tap(const sim::Value &place) {
    down(place);
    advance(0.1);
    up();
}

sim::Value Device::indicator() {
    sim::Value found = ask("indicator", {{"identifier", setup_.package.statusBarItem}});
    return middle(found["fields"]);
}

sim::Value Device::overlayView(int tag) {
    sim::Value found = ask("find", overlayQuery(tag));
    const auto &matches = found["matches"].array();
    if (matches.empty())
        throw std::runtime_error("no view of tag " + std::to_string(tag) + " in the overlay");
    for (const auto &view : found["views"].array())
        if (view["number"] == matches.front()) return middle(view["screen"]);
    throw std::runtime_error("a view that was found is not described");
}

size_t Device::overlayViews(int tag) { return ask("find", overlayQuery(tag))["matches"].array().size(); }

std::filesystem::path Device::settingsFile() const { return root_.at(setup_.package.settingsFile); }

} // namespace bench
