#include "SimulatedDevice.hpp"

#include "BootMessage.hpp"
#include "CrashText.hpp"
#include "Interrupt.hpp"
#include "Runtime/Values/Nanoseconds.hpp"
#include "SettingsProcess.hpp"
#include "SettingsRemarks.hpp"
#include "Supervisor/Boot/Extensions.hpp"
#include "Supervisor/Boot/StaticClasses.hpp"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <limits>
#include <utility>

namespace sim {

SimulatedDevice::SimulatedDevice(const DeviceSetup &setup, BootOptions options, bool homeScreen)
    : setup_(setup), options_(std::move(options)), root_(options_.root),
      settings_(root_.at(setup.package.settingsFile)), homeScreen_(homeScreen) {
    prepareFiles();
    if (!homeScreen_) return;
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
    installExtensions();
    for (const auto &remark : options_.remarks) warn(remark);
    if (options_.settings) {
        settings_.write(*options_.settings);
        remarkSettings(*this, setup_.installation, options_.settings->object());
    }
    if (options_.settingsText) settings_.writeText(*options_.settingsText);
    if (options_.otherExtension) std::ofstream(root_.at(setup_.package.otherExtensionList)) << "/.\n";
}

// With others the processes load what is installed, so the package's own library must not be there when it is
// not wanted.
void SimulatedDevice::installExtensions() {
    namespace fs = std::filesystem;
    std::vector<std::string> all = setup_.extensions;
    all.insert(all.end(), options_.extensions.begin(), options_.extensions.end());
    if (all.empty()) return;
    const fs::path own = root_.at(setup_.package.library), folder = own.parent_path();
    if (!options_.extension) {
        fs::remove(own);
        fs::remove(fs::path(own).replace_extension(".plist"));
    }
    for (const auto &path : all)
        for (const auto &[library, filter] : extensionFiles(path, setup_.package.extensionBuild))
            for (const auto &file : {library, filter}) {
                fs::remove(folder / file.filename());
                fs::copy_file(file, folder / file.filename());
            }
    options_.extension = true;
}

ChildProcess::Setup SimulatedDevice::processSetup(const char *program) const {
    // Foundation reads the preferred languages from the command line.
    return {.launch = {.program = setup_.installation.programs / program,
                       .arguments = {"-AppleLanguages", "(" + options_.language + ")"},
                       .debugger = setup_.debugger},
            .nurseries = setup_.nurseries};
}

BootMessage SimulatedDevice::bootMessage() const {
    return sim::bootMessage(setup_, options_, root_.path(), now_);
}

void SimulatedDevice::boot() {
    ++generation_;
    home_ = std::make_unique<SimulatedProcess>(processSetup("pendix-home"),
                                               [this](Value event) { note(std::move(event)); });
    try {
        Reply reply = home_->request("boot", toValue(bootMessage()).object());
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
    auto application = std::ranges::find_if(options_.applications, [&](const ApplicationSpec &candidate) {
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
    events_.add(toSeconds(now_), "warning", {{"text", text}});
}

void SimulatedDevice::recordCrash(const Ending &ending) {
    now_ = std::max(now_, ending.time);
    std::string stack = crashText(ending.crashReport);
    std::cerr << "The home screen crashed at " << toSeconds(now_) << " s: " << ending.reason() << '\n'
              << stack << ending.errorOutput << std::flush;
    events_.add(toSeconds(now_), "crash", {{"signal", ending.reason()}, {"stack", stack}});
}

void SimulatedDevice::end() {
    troubles_ += troublesOf(home_->end(), "The home screen");
    home_.reset();
    next_.reset();
}

std::string SimulatedDevice::shutDown() {
    homeScreen_ = false;
    if (home_) end();
    return std::exchange(troubles_, "");
}

void SimulatedDevice::respring() {
    events_.add(toSeconds(now_), "respring", {});
    end();
    boot();
}

void SimulatedDevice::setAids(const Aids &aids) {
    options_.aids = aids;
    Object values;
    eachField(options_.aids, [&](const char *name, const auto &aid) { values.emplace(name, aid); });
    if (home_) act("aids", values);
    if (settingsProcess_ && settingsProcess_->running()) settingsProcess_->act("aids", values);
}

void SimulatedDevice::attach(SettingsProcess *process) {
    if (settingsProcess_) settingsProcess_->close();
    settingsProcess_ = process;
}

void SimulatedDevice::detach(SettingsProcess *process) {
    if (settingsProcess_ == process) settingsProcess_ = nullptr;
}

void SimulatedDevice::restartFromSettings(int64_t time) {
    now_ = time;
    if (home_) respring();
}

Value SimulatedDevice::perform(const char *request, Object &arguments, bool *died) {
    *died = false;
    if (!home_)
        throw RequestError(homeScreen_ ? "the home screen does not run: it could not be started again"
                                       : "the device has no home screen");
    // The device stays turned, whatever becomes of its home screen.
    if (request == std::string_view("rotate")) options_.orientation = arguments["orientation"].integer();
    try {
        Reply reply = home_->request(request, std::move(arguments));
        now_ = reply.now;
        next_ = reply.next;
        options_.passcodeLocked = reply.locked;
        if (reply.respring) {
            end();
            boot();
        }
        return std::move(reply.result);
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

void SimulatedDevice::advance(int64_t duration) {
    int64_t target = now_ + duration;
    if (settingsProcess_ && settingsProcess_->running()) return advanceBoth(target);
    runHome(target);
}

// Again after a crash or a respring on the way, which cut it short.
void SimulatedDevice::runHome(int64_t time) {
    if (!home_ && !homeScreen_) {
        now_ = std::max(now_, time);
        return;
    }
    do act("advance", {{"to", time}});
    while (now_ < time);
}

// In steps, so that each process finds the files as they are at its time. At equal times the home screen goes
// first: it runs through the moment for which Settings waits, and Settings up to just before the home
// screen's.
void SimulatedDevice::advanceBoth(int64_t target) {
    constexpr int64_t kNever = std::numeric_limits<int64_t>::max();
    do {
        runHome(std::min(target, settingsProcess_->next().value_or(kNever)));
        int64_t homeNext = next_.value_or(kNever);
        settingsProcess_->runTo(std::min(target, homeNext - 1));
        if (!settingsProcess_->running()) runHome(target);
    } while (now_ < target || (settingsProcess_->running() && settingsProcess_->time() < target));
}

} // namespace sim
