#include "Process/Shared/Requests.h"
#include "Process/Shared/ViewSearch.h"
#include "Runtime/Files/FoundationFiles.hpp"
#include "Runtime/Objc/HookCounts.hpp"
#include "Runtime/Time/Timers.hpp"
#include "SpringBoard/Applications/Applications.h"
#include "SpringBoard/Icons/Icons.h"
#include "SpringBoard/Lock/LockState.h"
#include "UIKit/Application/ApplicationState.h"
#include "Variables.h"
#include "WindowReport.h"

namespace sim {

namespace {

Value timers() {
    Array result;
    for (const auto &timer : describeTimers())
        result.push_back(Array{timer.target, timer.selector, timer.interval, timer.due});
    return result;
}

Value hooks() {
    Array result;
    for (const auto &count : takeHookCounts())
        result.push_back(Array{count.className, count.selector, static_cast<int64_t>(count.state),
                               static_cast<int64_t>(count.entered), static_cast<int64_t>(count.previous)});
    return result;
}

// [identifier, count, whether a folder holds the icon]
Value badges() {
    Array result;
    for (SBApplication *application : installedApplications()) {
        SBIcon *icon = findIcon(identifierOf(application));
        if (int64_t value = [icon badgeValue])
            result.push_back(Array{record(application).identifier, value, state(icon).container != nil});
    }
    return result;
}

// {"item": identifier of a status-bar item}: all that there is to know about an overlay and its indicator at
// this moment. Hooks are counted from one call to the next.
Value inspect(const Value &arguments) {
    Array overlays;
    for (UIWindow *window : allWindows())
        if (role(window) == WindowRole::overlay) overlays.push_back(windowReport(window));
    return Object{{"overlays", overlays},
                  {"windows", windowCounts()},
                  {"timers", timers()},
                  {"hooks", hooks()},
                  {"badges", badges()},
                  {"variables", watchedVariables()},
                  {"item", statusBarItem(arguments["item"].string())},
                  {"display", displayIsOn()},
                  {"passcode_locked", lockState().passcodeLocked},
                  {"screen", Array{interfaceSize().width, interfaceSize().height}},
                  {"settings_writes", fileCounts().writes}};
}

// {"flags": symbols by name, "lists": the same, "at_hooks": names of flags by which hooks are counted apart}:
// the names that no library has.
Value watchRequest(const Value &arguments) {
    Array missing = watchVariables(arguments["flags"].object(), arguments["lists"].object());
    std::vector<const signed char *> atHooks;
    for (const auto &name : arguments["at_hooks"].array())
        if (const signed char *flag = watchedFlag(name.string())) atHooks.push_back(flag);
    watchAtHooks(atHooks);
    return missing;
}

} // namespace

std::span<const Request> inspectionRequests() {
    static const Request requests[] = {{"inspect", inspect}, {"watch", watchRequest}};
    return requests;
}

} // namespace sim
