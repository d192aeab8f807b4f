// The `phone` and the `pane` of scripts: a process of a device and the finger on its screen.
#pragma once

#include "Binding.hpp"
#include "Supervisor/Machine/Finger.hpp"
#include "Supervisor/Machine/SettingsProcess.hpp"
#include "Supervisor/Machine/SimulatedDevice.hpp"
#include "Supervisor/Reference/About.hpp"

#include <map>
#include <memory>
#include <set>
#include <span>

namespace sim {

struct Phone {
    // The home screen of a device.
    Phone(std::shared_ptr<SimulatedDevice> owner, uint64_t serial)
        : owner(std::move(owner)), device(*this->owner), finger(device), serial(serial) {}
    // The Settings application of a device.
    Phone(std::shared_ptr<SimulatedDevice> owner, std::unique_ptr<SettingsProcess> pane, uint64_t serial)
        : owner(std::move(owner)), pane(std::move(pane)), device(*this->pane), finger(device),
          serial(serial) {}

    // Fingers count from 1, the one of all calls that name none. Throws std::runtime_error past 10.
    Finger &fingerNumbered(int64_t number);

    std::shared_ptr<SimulatedDevice> owner;
    std::unique_ptr<SettingsProcess> pane; // of a pane only
    SimulatedScreen &device;
    Finger finger;
    std::map<int64_t, Finger> otherFingers; // by number
    std::set<std::string> missingClasses;   // that were looked for, each with a warning
    uint64_t serial;                        // tells the phones of one script apart
};

// A method of it. Arguments start at index 2, there are as many as parameters at most; the name of one that
// may be left out is in brackets.
struct Method {
    const char *name;
    int (*run)(lua_State *lua, Phone &phone, Script &script);
    std::vector<Described> parameters;
    About about;
};

std::span<const Method> timeMethods();
std::span<const Method> touchMethods();
std::span<const Method> lookingMethods();
std::span<const Method> speakingMethods();
std::span<const Method> homeScreenMethods();
std::span<const Method> lockMethods();
std::span<const Method> settingsMethods();
std::span<const Method> observingMethods();
std::span<const Method> openingMethods(); // a phone's way to its pane
std::span<const Method> paneMethods();

// The methods of phones and of panes by what they are for.
struct MethodFamily {
    const char *name; // "touches"
    About title;
    std::span<const Method> methods;
    bool ofPhone, ofPane;
};
std::vector<MethodFamily> methodFamilies();

// Pushes the object of a phone or pane that was just opened and that the script owns.
void pushPhone(lua_State *lua, Phone &phone);
// Tells them apart; never 0.
uint64_t nextSerial();

// `boot` and `settings_app`
int boot(lua_State *lua, Script &script);
int bootSettings(lua_State *lua, Script &script);

} // namespace sim
