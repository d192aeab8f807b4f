#include "Process/Shared/Requests.h"
#include "Process/Shared/Screen.h"
#include "Process/Shared/ViewAnimations.h"
#include "Process/Shared/ViewSnapshot.h"
#include "SpringBoard/HomeScreen.h"
#include "SpringBoard/Lock/LockState.h"
#include "UIKit/CoreGraphics/CGObjects.h"
#include "UIKit/Views/ViewState.h"

#include <SpringBoard/SBIcon.h>

namespace sim {

namespace {

Value one(UIView *view) { return snapshot(view ? std::vector<UIView *>{view} : std::vector<UIView *>{}); }

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

std::span<const Request> homeScreenLookingRequests() {
    static const Request requests[] = {{"icon", icon}, {"indicator", indicator}};
    return requests;
}

std::vector<std::span<const Request>> ownRequests() {
    return {bootRequests(), homeScreenLookingRequests(), homeScreenRequests(), lockRequests(),
            inspectionRequests()};
}

void addOwnState(Object &reply) {
    if (lockState().passcodeLocked) reply.emplace("locked", true);
}

} // namespace sim
