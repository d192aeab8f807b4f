#include "Process/Shared/Requests.h"
#include "SpringBoard/HomeScreen.h"

namespace sim {

namespace {

// {"on": boolean}
Value display(const Value &arguments) {
    setDisplay(arguments["on"].boolean());
    return {};
}

Value lock(const Value &) {
    pressLockButton();
    return {};
}

Value unlock(const Value &) {
    unlockDevice();
    return {};
}

Value homeTwice(const Value &) {
    clickHomeButtonTwice();
    return {};
}

// {"text"}
Value banner(const Value &arguments) {
    presentBanner(arguments["text"].string());
    return {};
}

// {"event": number}: false on a device without a sensor.
Value finger(const Value &arguments) {
    return sendFingerEvent(static_cast<unsigned>(arguments["event"].integer()));
}

} // namespace

std::span<const Request> lockRequests() {
    static const Request requests[] = {{"display", display},      {"lock", lock},     {"unlock", unlock},
                                       {"home_twice", homeTwice}, {"banner", banner}, {"finger", finger}};
    return requests;
}

} // namespace sim
