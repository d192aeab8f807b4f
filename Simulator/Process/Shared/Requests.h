// What the supervisor may ask of a simulated process. Each family of requests lists its own.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <span>
#include <stdexcept>
#include <vector>

namespace sim {

// A request that cannot be carried out; the text goes to whoever asked.
struct BadRequest : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct Request {
    const char *name;
    // Takes an object of arguments and gives the result, null for none. Throws BadRequest, or ValueError for
    // an argument that is missing or of the wrong kind.
    Value (*handle)(const Value &arguments);
};

std::span<const Request> timeRequests();    // advance, busy
std::span<const Request> touchRequests();   // touch_down, touch_move, touch_up
std::span<const Request> lookingRequests(); // find, view, windows, touchable, touched, seen
// spoken, focus, activate, act, adjust, escape, scroll_page, aids
std::span<const Request> speakingRequests();
std::span<const Request> observingRequests(); // counters, reset_counters, draw

// What one kind of process answers besides; each program has its own.
std::vector<std::span<const Request>> ownRequests();
// What its every reply says besides.
void addOwnState(Object &reply);

// Of the home screen:
std::span<const Request> bootRequests();              // boot
std::span<const Request> homeScreenLookingRequests(); // icon, indicator
std::span<const Request> homeScreenRequests(); // badge, run, home, restyle, rotate, reachability, activator,
                                               // foreground, switcher, call
std::span<const Request> inspectionRequests(); // watch, inspect, state
std::span<const Request> lockRequests();       // display, lock, unlock, home_twice, banner, finger

// Carries out the request, and what is due at this moment after it.
Value handleRequest(const Value &name, const Value &arguments);

} // namespace sim
