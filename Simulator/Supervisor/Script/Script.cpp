#include "Script.hpp"

#include "Library.hpp"
#include "Phone.hpp"
#include "Supervisor/Machine/Interrupt.hpp"
#include "Supervisor/Machine/ViewDump.hpp"

#include <algorithm>
#include <iostream>
#include <stdexcept>

namespace sim {

namespace {

// Adds the calls that led to an error to its text. A coroutine of a caught error is not looked into.
int addTraceback(lua_State *lua) {
    if (lua_type(lua, 1) != LUA_TSTRING) luaL_tolstring(lua, 1, nullptr);
    luaL_traceback(lua, lua, lua_tostring(lua, -1), 1);
    return 1;
}

// The interpreter that an interrupt stops.
lua_State *running = nullptr;

void raiseInterrupt(lua_State *lua, lua_Debug *) {
    lua_sethook(lua, nullptr, 0, 0);
    luaL_error(lua, "interrupted");
}

// Runs in a signal handler, in which setting a hook is allowed.
void stopSoon() { lua_sethook(running, raiseInterrupt, LUA_MASKCALL | LUA_MASKRET | LUA_MASKCOUNT, 1); }

} // namespace

Script::Script(DeviceSetup setup, ScriptOptions options)
    : setup_(std::move(setup)), options_(std::move(options)), lua_(luaL_newstate()) {
    if (!lua_) throw std::runtime_error("no memory for the interpreter");
    *static_cast<Script **>(lua_getextraspace(lua_)) = this;
    openLibrary(lua_, options_);
}

Script::~Script() { lua_close(lua_); }

Outcome Script::run() {
    Outcome outcome = runFile();
    for (auto &phone : phones_) addTroubles(phone->device.shutDown());
    return outcome == Outcome::passed && failed_ ? Outcome::failed : outcome;
}

Outcome Script::runFile() {
    try {
        loadScript(lua_, options_.file);
    } catch (const std::runtime_error &error) {
        std::cerr << error.what() << '\n';
        return Outcome::refused;
    }
    running = lua_;
    watchInterrupts(stopSoon, setup_.debugger);
    lua_pushcfunction(lua_, addTraceback);
    lua_insert(lua_, 1);
    return lua_pcall(lua_, 0, 0, 1) == LUA_OK ? Outcome::passed : reportError();
}

Outcome Script::reportError() {
    std::string text = lua_tostring(lua_, -1);
    std::cerr << "error: " << text << '\n';
    reportDevice();
    bool boot =
        std::ranges::any_of(bootErrors_, [&](const auto &known) { return text.find(known) != text.npos; });
    return boot ? Outcome::refused : Outcome::failed;
}

void Script::fail(const std::string &where, const std::string &message) {
    failed_ = true;
    std::cerr << "failed: " << where << ": " << message << '\n';
    reportDevice();
}

// Nothing when the device looks as it did in the last report.
void Script::reportDevice() {
    if (phones_.empty()) return;
    SimulatedScreen &device = phones_.back()->device;
    std::string report = "  on " + device.description() + "\n";
    constexpr size_t kLastEvents = 20;
    try {
        std::string window = device.reportedWindow();
        std::string dump = viewDump(device.ask("windows", {{"window", window}}));
        report += window + ":\n" + (dump.empty() ? "  (no window)\n" : dump);
    } catch (const std::runtime_error &error) {
        report += std::string("no ") + device.reportedWindow() + ": " + error.what() + "\n";
    }
    report += "last events:\n" + device.events().tail(kLastEvents);
    if (report == reported_) return;
    std::cerr << report << std::flush;
    reported_ = report;
}

void Script::addTroubles(const std::string &troubles) {
    if (troubles.empty()) return;
    failed_ = true;
    std::cerr << troubles << std::flush;
}

Phone &Script::add(std::unique_ptr<Phone> phone) {
    phones_.push_back(std::move(phone));
    return *phones_.back();
}

void Script::close(Phone *phone) {
    auto found = std::ranges::find(phones_, phone, &std::unique_ptr<Phone>::get);
    if (found == phones_.end()) return;
    addTroubles(phone->device.shutDown());
    phones_.erase(found);
}

} // namespace sim
