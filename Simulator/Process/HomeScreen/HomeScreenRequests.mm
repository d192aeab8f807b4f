#include "MethodCall.h"
#include "Process/Shared/Requests.h"
#include "Process/Shared/ViewSearch.h"
#include "SpringBoard/HomeScreen.h"
#include "SpringBoard/System/Interface.h"

namespace sim {

namespace {

// {"id", "value"}: false when there is no such application.
Value badge(const Value &arguments) {
    return setBadge(arguments["id"].string(), static_cast<int>(arguments["value"].integer()));
}

// {"id"}: false when there is no such application.
Value run(const Value &arguments) { return openApplication(arguments["id"].string()); }

Value home(const Value &) {
    clickHomeButton();
    return {};
}

Value restyle(const Value &) {
    restyleStatusBar();
    return {};
}

// {"orientation": 1 to 4}
Value rotate(const Value &arguments) {
    turnDevice(static_cast<UIInterfaceOrientation>(arguments["orientation"].integer()));
    return {};
}

// {"on"}: false on a device without it.
Value reachability(const Value &arguments) { return setReachability(arguments["on"].boolean()); }

// {"listener": name}: false when none has it.
Value activator(const Value &arguments) { return sendActivatorEvent(arguments["listener"].string()); }

Value foreground(const Value &) {
    auto identifier = foregroundApplication();
    return identifier ? Value(*identifier) : Value();
}

Value switcher(const Value &) {
    Array result;
    for (const auto &identifier : switcherApplications()) result.emplace_back(identifier);
    return result;
}

// {"selector", and "argument" (number or text) or "view" (number)}
Value call(const Value &arguments) {
    UIApplication *application = [UIApplication sharedApplication];
    const auto &selector = arguments["selector"].string();
    if (!arguments.has("view")) return callMethod(application, selector, arguments["argument"]);
    UIView *view = viewWithNumber(arguments["view"].integer());
    if (!view) throw BadRequest("the view is gone");
    return callMethod(application, selector, view);
}

} // namespace

std::span<const Request> homeScreenRequests() {
    static const Request requests[] = {{"badge", badge},         {"run", run},
                                       {"home", home},           {"restyle", restyle},
                                       {"rotate", rotate},       {"reachability", reachability},
                                       {"activator", activator}, {"foreground", foreground},
                                       {"switcher", switcher},   {"call", call}};
    return requests;
}

} // namespace sim
