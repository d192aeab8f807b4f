// The `phone` of scripts: one device and the finger on its screen.
#pragma once

#include "Binding.hpp"
#include "Device/Supervisor/Machine/Finger.hpp"

#include <span>

namespace sim {

struct Phone {
    Phone(const DeviceSetup &setup, BootOptions options, uint64_t serial)
        : device(setup, std::move(options)), finger(device), serial(serial) {}

    SimulatedDevice device;
    Finger finger;
    uint64_t serial; // tells the phones of one script apart
};

// A method of it. Arguments start at index 2, there are at most `arguments` of them.
struct Method {
    const char *name;
    int arguments;
    int (*run)(lua_State *lua, Phone &phone, Script &script);
};

std::span<const Method> timeMethods();
std::span<const Method> touchMethods();
std::span<const Method> lookingMethods();
std::span<const Method> homeScreenMethods();
std::span<const Method> settingsMethods();
std::span<const Method> observingMethods();
// Those that the platform does not do yet; calling one says so.
std::span<const char *const> pendingMethods();

// Pushes the object of a phone that the script owns.
void pushPhone(lua_State *lua, Phone &phone);

// `boot`
int boot(lua_State *lua, Script &script);

} // namespace sim
