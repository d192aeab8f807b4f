#include "Requests.h"
#include "Screen.h"
#include "SpringBoard/HomeScreen.h"
#include "UIKit/CoreGraphics/CGObjects.h"
#include "UIKit/Views/ViewState.h"
#include "ViewAnimations.h"
#include "ViewSearch.h"
#include "ViewSnapshot.h"

#include <SpringBoard/SBIcon.h>

namespace sim {

namespace {

Value one(UIView *view) { return snapshot(view ? std::vector<UIView *>{view} : std::vector<UIView *>{}); }

// {"query": criteria, "first": true for the first match only}
Value find(const Value &arguments) { return snapshot(findViews(arguments["query"], arguments.has("first"))); }

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

// {"id": application}
Value icon(const Value &arguments) { return one(homeScreenIconView(arguments["id"].string())); }

// {"identifier": of a status-bar item}: {"fields": what there is to tell, and the item's view as a match}
Value indicator(const Value &arguments) {
    const auto &identifier = arguments["identifier"].string();
    Object fields = statusBarItem(identifier).object();
    UIView *view = statusBarItemView(identifier);
    if (!view) return Object{{"fields", fields}};
    const auto &model = state([view layer]).model;
    CGRect frame = presentedOnScreen(view);
    fields["alpha"] = rounded(model.opacity);
    fields["shadow_opacity"] = rounded(model.shadowOpacity);
    fields["shadow_radius"] = rounded(model.shadowRadius);
    fields["shadow_color"] = colorText(model.shadowColor);
    fields["x"] = rounded(frame.origin.x);
    fields["y"] = rounded(frame.origin.y);
    fields["w"] = rounded(frame.size.width);
    fields["h"] = rounded(frame.size.height);
    Value result = one(view);
    result.set("fields", fields);
    return result;
}

} // namespace

std::span<const Request> lookingRequests() {
    static const Request requests[] = {
        {"find", find}, {"view", view}, {"windows", windows}, {"icon", icon}, {"indicator", indicator}};
    return requests;
}

} // namespace sim
