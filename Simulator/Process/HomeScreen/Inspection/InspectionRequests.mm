#include "Process/Shared/Requests.h"
#include "Process/Shared/Screen.h"
#include "Process/Shared/ViewSearch.h"
#include "Process/Shared/ViewSnapshot.h"
#include "Runtime/Files/FoundationFiles.hpp"
#include "Runtime/Objc/HookCounts.hpp"
#include "Runtime/Time/Timers.hpp"
#include "SpringBoard/Applications/Applications.h"
#include "SpringBoard/Icons/Icons.h"
#include "SpringBoard/Lock/LockState.h"
#include "SpringBoard/System/Interface.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/Views/ViewState.h"
#include "Variables.h"
#include "WindowReport.h"

#include <BiometricKit/BiometricKit.h>

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

// What stands on an icon: [[class, tag, alpha, tint or ""]]; alpha is 0 for what is hidden.
Value partsOf(UIView *iconView) {
    Array parts;
    for (UIView *part in [iconView subviews]) {
        LayerProperties room;
        const ViewLook look = lookOf(part, presented([part layer], room));
        parts.push_back(Array{object_getClassName(part), static_cast<int64_t>([part tag]),
                              [part isHidden] ? 0.0 : look.alpha, look.ink});
    }
    return parts;
}

// [identifier, count, whether a folder holds the icon, what stands on it]
Value badges() {
    Array result;
    for (SBApplication *application : installedApplications()) {
        SBIcon *icon = findIcon(identifierOf(application));
        if (int64_t value = [icon badgeValue])
            result.push_back(Array{record(application).identifier, value, state(icon).container != nil,
                                   partsOf(visibleIconView(application))});
    }
    return result;
}

// [identifier, name, whether it runs, whether its icon has a drawing of its own], in the order of
// installation.
Value applications() {
    Array result;
    for (SBApplication *application : installedApplications()) {
        const ApplicationRecord &one = record(application);
        result.push_back(Array{one.identifier, one.name, one.pid != 0, one.icon});
    }
    return result;
}

Value switcher() {
    const std::vector<std::string> identifiers = switcherApplications();
    return Array(identifiers.begin(), identifiers.end());
}

// As it is seen at this moment, upright, its alpha, and its shadow's opacity, radius and colour; null where
// the bar has no view for it.
Value itemPlace(const std::string &identifier) {
    UIView *view = statusBarItemView(identifier);
    if (!view) return {};
    const CGRect frame = presentedOnScreen(view);
    const LayerProperties &model = state([view layer]).model;
    return Array{frame.origin.x, frame.origin.y,      frame.size.width,   frame.size.height,
                 model.opacity,  model.shadowOpacity, model.shadowRadius, colorText(model.shadowColor)};
}

// {"item": identifier of a status-bar item; "since": the "revision" of the answer before}: all that there is
// to know about an overlay and its indicator at this moment, as far as it changed (AnswerMemory). "views" are
// the rows of all overlays. Hooks are counted from one call to the next.
Value inspect(const Value &arguments) {
    static AnswerMemory memory;
    static RowWriter rows;
    const std::string &item = arguments["item"].string();
    Array overlays;
    for (UIWindow *window : allWindows())
        if (role(window) == WindowRole::overlay) overlays.push_back(windowReport(window, rows));
    Object answer;
    answer["overlays"] = std::move(overlays);
    answer["windows"] = windowCounts();
    answer["timers"] = timers();
    answer["hooks"] = hooks();
    answer["badges"] = badges();
    answer["variables"] = watchedVariables();
    answer["item"] = statusBarItem(item);
    answer["item_place"] = itemPlace(item);
    answer["applications"] = applications();
    answer["switcher"] = switcher();
    answer["foreground"] = foregroundApplication().value_or("");
    answer["screen_locked"] = lockState().screenLocked;
    answer["icon"] = Array{[SBIconView defaultIconSize].width, [SBIconView defaultIconSize].height};
    answer["display"] = displayIsOn();
    answer["passcode_locked"] = lockState().passcodeLocked;
    answer["screen"] = Array{interfaceSize().width, interfaceSize().height};
    answer["settings_writes"] = fileCounts().writes;
    const Data views{rows.take(!memory.isCurrent(arguments["since"]))};
    Value changes = memory.changes(std::move(answer), arguments["since"]);
    changes.set("views", views);
    return changes;
}

// What decides whether a call has an effect now.
Value stateRequest(const Value &) {
    const Value drawn = badges();
    Object numbers;
    for (const auto &badge : drawn.array()) numbers.emplace(badge.array()[0].string(), badge.array()[1]);
    return Object{{"badges", numbers},
                  {"display", displayIsOn()},
                  {"locked", lockState().screenLocked},
                  {"reached", reachabilityIsOn()},
                  {"matching", [[SBUIBiometricEventMonitor sharedInstance] isMatchingEnabled] == YES}};
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
    static const Request requests[] = {
        {"inspect", inspect}, {"watch", watchRequest}, {"state", stateRequest}};
    return requests;
}

} // namespace sim
