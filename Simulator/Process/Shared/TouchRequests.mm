#include "Requests.h"
#include "Runtime/Process/Events.hpp"
#include "Screen.h"
#include "UIKit/Touch/TouchInput.h"
#include "UIKit/UIKit+Further.h"
#include "ViewSearch.h"

#include <string>

namespace sim {

namespace {

// {"finger": number}, which tells fingers apart; absent: the first.
int finger(const Value &arguments) {
    return arguments.has("finger") ? static_cast<int>(arguments["finger"].integer()) : 0;
}

CGPoint pointIn(const Value &arguments) { return {arguments["x"].number(), arguments["y"].number()}; }

CGPoint centre(CGRect rect) { return {CGRectGetMidX(rect), CGRectGetMidY(rect)}; }

std::string text(UIView *view) { return view ? [[view description] UTF8String] : "no view"; }

// A label in a button takes no touch itself and covers nothing; what lies beside the view's own line of views
// does.
void warnWhenCovered(UIView *view, CGPoint point) {
    UIView *hit = touchTarget(point);
    if (hit && ([hit isDescendantOfView:view] || [view isDescendantOfView:hit])) return;
    recordWarning("the touch on " + text(view) + " lands on " + text(hit));
}

// {"x", "y"} and, for a touch on a view, {"view": number}: then the point counts only when the view is gone.
// Gives the point that was touched.
Value down(const Value &arguments) {
    CGPoint point = pointIn(arguments);
    if (arguments.has("view")) {
        UIView *view = viewWithNumber(arguments["view"].integer());
        if (view) {
            point = centre(presentedOnScreen(view));
            warnWhenCovered(view, fromUpright(point));
        } else {
            recordWarning("the touched view is gone; the touch lands where it was");
        }
    }
    touchBegan(finger(arguments), fromUpright(point));
    return Object{{"x", point.x}, {"y", point.y}};
}

Value move(const Value &arguments) {
    touchMoved(finger(arguments), fromUpright(pointIn(arguments)));
    return {};
}

Value up(const Value &arguments) {
    touchEnded(finger(arguments));
    return {};
}

} // namespace

std::span<const Request> touchRequests() {
    static const Request requests[] = {{"touch_down", down}, {"touch_move", move}, {"touch_up", up}};
    return requests;
}

} // namespace sim
