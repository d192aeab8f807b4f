#include "SimulatedDevice.hpp"

#include "BootMessage.hpp"
#include "Device/Supervisor/Boot/StaticClasses.hpp"
#include "Interrupt.hpp"
#include "Nanoseconds.hpp"
#include "Runtime/Values/Symbolise.hpp"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <regex>
#include <utility>

namespace sim {

namespace {

// A crash report as text that is the same on every run: without the addresses of objects.
std::string crashText(const std::string &report) {
    static const std::regex address("([^+])0x[0-9a-f]+");
    return std::regex_replace(symbolise(report), address, "$010x…");
}

} // namespace

SimulatedDevice::SimulatedDevice(const DeviceSetup &setup, BootOptions options)
    : setup_(setup), options_(std::move(options)), root_(options_.root),
      settings_(root_.at(setup.package.settingsFile)) {
    prepareFiles();
    try {
        boot();
    } catch (const RequestError &error) {
        throw BootError(std::string("boot: ") + error.what());
    }
}

SimulatedDevice::~SimulatedDevice() { shutDown(); }

std::string SimulatedDevice::description() const {
    return std::string(options_.profile->name) + ", iOS " + options_.version;
}

void SimulatedDevice::prepareFiles() {
    auto library = setup_.installation.stageRoot / setup_.package.library.substr(1);
    if (options_.extension && !std::filesystem::exists(library))
        throw BootError("boot: the library has not been built: there is no " + library.string());
    if (options_.extension && !options_.hiddenClasses.empty()) {
        auto named = staticClasses(readFile(library));
        for (const auto &name : options_.hiddenClasses)
            if (std::ranges::count(named, name))
                throw BootError("boot: '" + name + "' cannot be hidden: the library names it statically");
    }
    for (const auto &path : root_.install(setup_.installation.stageRoot, options_.missingFiles))
        warn("no installed file '" + path + "' to leave out");
    if (options_.settings) settings_.write(*options_.settings);
    if (options_.settingsText) settings_.writeText(*options_.settingsText);
    if (options_.otherExtension) std::ofstream(root_.at(setup_.package.otherExtensionList)) << "/.\n";
}

void SimulatedDevice::boot() {
    ++generation_;
    ChildProcess::Setup process{.program = setup_.installation.programs / "pendix-home",
                                // Foundation reads the preferred languages from the command line.
                                .arguments = {"-AppleLanguages", "(" + options_.language + ")"},
                                .home = root_.at("/var/mobile"),
                                .debugger = setup_.debugger};
    home_ = std::make_unique<SimulatedProcess>(process, [this](Value event) { note(std::move(event)); });
    try {
        Reply reply = home_->request("boot", bootMessage(setup_, options_, root_.path(), now_));
        next_ = reply.next;
    } catch (const ProcessDied &death) {
        recordCrash(death.ending);
        home_.reset();
        throw RequestError("the home screen died while it started: " + death.ending.reason());
    } catch (const RequestError &) {
        end();
        throw;
    }
}

// Keeps what a home screen finds again when it starts anew.
void SimulatedDevice::note(Value event) {
    const auto &kind = event["kind"].string();
    auto application = std::ranges::find_if(options_.applications, [&](const Application &candidate) {
        return event["id"].isString() && candidate.identifier == event["id"].string();
    });
    if (application != options_.applications.end()) {
        if (kind == "badge_set" && event["value"].isInteger()) application->badge = event["value"].integer();
        if (kind == "launch") application->running = true;
        if (kind == "quit") application->running = false;
    }
    events_.add(std::move(event));
}

void SimulatedDevice::warn(const std::string &text) {
    events_.add(inSeconds(now_), "warning", {{"text", text}});
}

void SimulatedDevice::recordCrash(const Ending &ending) {
    now_ = std::max(now_, ending.time);
    std::string stack = crashText(ending.crashReport);
    std::cerr << "The home screen crashed at " << inSeconds(now_) << " s: " << ending.reason() << '\n'
              << stack << ending.errorOutput << std::flush;
    events_.add(inSeconds(now_), "crash", {{"signal", ending.reason()}, {"stack", stack}});
}

void SimulatedDevice::end() {
    Ending ending = home_->end();
    home_.reset();
    if (!ending.clean())
        troubles_ += "The home screen did not end well: " + ending.reason() + "\n" + ending.errorOutput +
                     crashText(ending.crashReport);
}

std::string SimulatedDevice::shutDown() {
    if (home_) end();
    return std::exchange(troubles_, "");
}

void SimulatedDevice::respring() {
    events_.add(inSeconds(now_), "respring", {});
    end();
    boot();
}

Value SimulatedDevice::perform(const char *request, Object &arguments, bool *died) {
    *died = false;
    if (!home_) throw RequestError("the home screen does not run: it could not be started again");
    try {
        Reply reply = home_->request(request, std::move(arguments));
        now_ = reply.now;
        next_ = reply.next;
        if (reply.respring) {
            end();
            boot();
        }
        return reply.result;
    } catch (const ProcessDied &death) {
        // An interrupt from the terminal reaches the process as well.
        if (interrupted()) {
            home_.reset();
            throw RequestError("interrupted");
        }
        *died = true;
        recordCrash(death.ending);
        boot();
        return {};
    }
}

Value SimulatedDevice::act(const char *request, Object arguments) {
    bool died;
    return perform(request, arguments, &died);
}

Value SimulatedDevice::ask(const char *request, Object arguments) {
    bool died;
    Value result = perform(request, arguments, &died);
    if (died)
        throw RequestError(std::string("the home screen crashed when it was asked for '") + request + "'");
    return result;
}

void SimulatedDevice::advance(int64_t duration) {
    int64_t target = now_ + duration;
    // Again after a crash or a respring on the way, which cut it short.
    do act("advance", {{"to", target}});
    while (now_ < target);
}

int64_t SimulatedDevice::settle(int64_t limit) {
    int64_t start = now_;
    for (;;) {
        Value busy = ask("busy");
        if (busy.array().empty()) return now_ - start;
        if (!next_ || *next_ > start + limit) {
            std::string text = "still busy after " + std::to_string(inSeconds(limit)) + " s: ";
            for (const auto &item : busy.array())
                text += (&item == &busy.array()[0] ? "" : "; ") + item.string();
            advance(start + limit - now_);
            throw SettleError(text);
        }
        advance(std::max<int64_t>(*next_ - now_, 0));
    }
}

render::Bitmap SimulatedDevice::picture() {
    ask("draw");
    return home_->picture();
}

} // namespace sim
