#include "Script.hpp"

#include "Conversion.hpp"
#include "Library.hpp"
#include "MisspeltGlobal.hpp"
#include "Phone.hpp"
#include "Supervisor/Machine/DeviceReport.hpp"
#include "Supervisor/Machine/Interrupt.hpp"
#include "Supervisor/Machine/OutputFile.hpp"
#include "Traceback.hpp"

#include <algorithm>
#include <chrono>
#include <iostream>
#include <stdexcept>
#include <unistd.h>

namespace sim {

namespace {

constexpr size_t kMostPictures = 5; // of failures of one run

// The interpreter that an interrupt stops.
lua_State *running = nullptr;

void raiseInterrupt(lua_State *lua, lua_Debug *) {
    lua_sethook(lua, nullptr, 0, 0);
    luaL_error(lua, "interrupted");
}

// Runs in a signal handler, in which setting a hook is allowed.
void stopSoon() { lua_sethook(running, raiseInterrupt, LUA_MASKCALL | LUA_MASKRET | LUA_MASKCOUNT, 1); }

} // namespace

// Adds the calls that led to an error to its text, and what was meant by the name of a function that is none.
// A coroutine of a caught error is not looked into.
int addTraceback(lua_State *lua) {
    std::string text;
    if (lua_istable(lua, 1) && luaL_getmetafield(lua, 1, "__tostring") == LUA_TNIL)
        text = describe(lua, 1);
    else
        text = luaL_tolstring(lua, 1, nullptr);
    if (interrupted()) return 1;
    luaL_traceback(lua, lua, (text + misspeltGlobal(text)).c_str(), 1);
    return 1;
}

Script::Script(DeviceSetup setup, ScriptOptions options)
    : setup_(std::move(setup)), options_(std::move(options)), lua_(luaL_newstate()) {
    if (!lua_) throw std::runtime_error("no memory for the interpreter");
    *static_cast<Script **>(lua_getextraspace(lua_)) = this;
    if (options_.trace) trace_.emplace(options_.file);
    openLibrary(lua_, options_);
}

Script::~Script() { lua_close(lua_); }

Outcome Script::run() {
    auto start = std::chrono::steady_clock::now();
    Outcome outcome = runFile();
    if (test_) endTest();
    for (auto &phone : phones_) {
        tellWarnings(phone->device);
        addTroubles(phone->device.shutDown());
    }
    runs_ = false;
    if (!isLeftOut(outcome)) {
        std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
        tellOutside(taken.count());
        if (outcome == Outcome::passed && failed_) outcome = Outcome::failed;
        if (refused_) outcome = Outcome::refused;
    }
    summarize(outcome);
    return outcome;
}

void Script::summarize(Outcome outcome) const {
    auto counted = [](size_t number, const char *what) {
        return std::to_string(number) + " expectation" + (number == 1 ? " " : "s ") + what + "\n";
    };
    if (outcome == Outcome::passed && held_ > 0) std::cout << counted(held_, "held") << std::flush;
    if (outcome != Outcome::passed && failures_ > 0)
        std::cerr << failures_ << " of " << counted(held_ + failures_, "failed");
}

Outcome Script::runFile() {
    try {
        loadScript(lua_, options_.file);
    } catch (const std::runtime_error &error) {
        noteFailure(error.what());
        std::cerr << error.what() << '\n';
        return Outcome::refused;
    }
    running = lua_;
    runs_ = true;
    watchInterrupts(stopSoon, setup_.debugger);
    lua_pushcfunction(lua_, addTraceback);
    lua_insert(lua_, 1);
    return lua_pcall(lua_, 0, 0, 1) == LUA_OK ? Outcome::passed : reportError();
}

Outcome Script::reportError() {
    std::string text = lua_tostring(lua_, -1);
    if (interrupted()) {
        noteFailure("interrupted");
        std::cerr << text << '\n';
        return Outcome::failed;
    }
    std::cerr << "error: " << text << '\n';
    noteFailure(text.substr(0, text.find('\n')));
    reportDevice();
    return isBootError(text) ? Outcome::refused : Outcome::failed;
}

bool Script::isBootError(const std::string &text) const {
    return std::ranges::any_of(bootErrors_, [&](const auto &known) { return text.find(known) != text.npos; });
}

void Script::fail(const std::string &where, const std::string &message) {
    failed_ = true;
    ++failures_;
    std::string named = test_ ? "test '" + test_->name + "': " : "";
    noteFailure(where + ": " + message);
    std::cerr << "failed: " << where << ": " << named << message << '\n';
    reportDevice();
}

// Nothing when the device looks as it did in the last report.
void Script::reportDevice() {
    if (phones_.empty()) return;
    SimulatedScreen &device = phones_.back()->device;
    std::string report = deviceReport(device);
    if (report == reported_) return;
    std::cerr << report;
    if (runs_ && pictured_ < kMostPictures) std::cerr << pictureOfFailure(device);
    std::cerr << std::flush;
    reported_ = report;
}

std::string Script::pictureOfFailure(SimulatedScreen &device) {
    auto file = options_.pictures / ("failed-" + std::to_string(++pictured_) + ".png");
    try {
        writeOutput(file, render::encodePng(device.picture()));
        return "picture: " + file.string() + "\n";
    } catch (const std::runtime_error &error) {
        return std::string("no picture: ") + error.what() + "\n";
    }
}

// To a person at a terminal; scripts find them in the events.
void Script::tellWarnings(const SimulatedScreen &device) const {
    if (!runs_ || !isatty(STDERR_FILENO)) return;
    for (const auto &warning : device.events().ofKind("warning"))
        std::cerr << "warning: " << device.description() << ", at " << warning["t"].number()
                  << " s: " << warning["text"].string() << '\n';
}

void Script::addTroubles(const std::string &troubles) {
    if (troubles.empty()) return;
    failed_ = true;
    noteFailure(troubles);
    std::cerr << troubles << std::flush;
}

Phone &Script::add(std::unique_ptr<Phone> phone) {
    phones_.push_back(std::move(phone));
    return *phones_.back();
}

void Script::close(Phone *phone) {
    auto found = std::ranges::find(phones_, phone, &std::unique_ptr<Phone>::get);
    if (found == phones_.end()) return;
    tellWarnings(phone->device);
    addTroubles(phone->device.shutDown());
    phones_.erase(found);
}

} // namespace sim
