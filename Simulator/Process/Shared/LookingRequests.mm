#include "Requests.h"
#include "Runtime/Objc/HiddenClasses.hpp"
#include "Screen.h"
#include "TouchablePlaces.h"
#include "UIKit/Touch/TouchInput.h"
#include "ViewSearch.h"
#include "ViewSnapshot.h"

namespace sim {

namespace {

Value one(UIView *view) { return snapshot(view ? std::vector<UIView *>{view} : std::vector<UIView *>{}); }

// {"query": criteria, "first": true for the first match only}. When the query names a class that does not
// exist, hidden or not, the answer has "classes", all that views can have.
Value find(const Value &arguments) {
    const Value &query = arguments["query"];
    Value answer = snapshot(findViews(query, arguments.has("first")));
    if (query.has("class") && !findHiddenClass(query["class"].string().c_str()))
        answer.set("classes", viewClasses());
    return answer;
}

// {"view": number}
Value view(const Value &arguments) { return one(viewWithNumber(arguments["view"].integer())); }

// {"window": name}, which may be absent.
Value windows(const Value &arguments) {
    std::optional<std::string> name;
    if (arguments.has("window")) name = arguments["window"].string();
    std::vector<UIView *> views;
    for (UIWindow *window : windowsNamed(name)) views.push_back(window);
    return snapshot(views);
}

// {"windows": [name]}
Value touchable(const Value &arguments) {
    std::vector<std::string> names;
    for (const auto &name : arguments["windows"].array()) names.push_back(name.string());
    return touchablePlaces(names);
}

// {"window": of the view, "line": the view and those that hold it, from the inside out}; null without a view.
Value inItsWindow(UIView *view) {
    if (![view window]) return {};
    return Object{{"window", windowName([view window])}, {"line", lineage(view)}};
}

CGPoint pointIn(const Value &arguments) { return {arguments["x"].number(), arguments["y"].number()}; }

// {"x", "y"}: what a finger would touch there
Value touched(const Value &arguments) { return inItsWindow(touchTarget(fromUpright(pointIn(arguments)))); }

// {"x", "y"}: what a person sees there
Value seen(const Value &arguments) { return inItsWindow(viewSeenAt(pointIn(arguments))); }

} // namespace

std::span<const Request> lookingRequests() {
    static const Request requests[] = {{"find", find},           {"view", view},       {"windows", windows},
                                       {"touchable", touchable}, {"touched", touched}, {"seen", seen}};
    return requests;
}

} // namespace sim
