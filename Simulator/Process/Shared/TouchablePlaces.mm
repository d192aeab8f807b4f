#include "TouchablePlaces.h"

#include "Runtime/Process/Device.hpp"
#include "Screen.h"
#include "UIKit/CoreGraphics/CGGeometry+Further.h"
#include "UIKit/Views/ViewState.h"
#include "ViewSearch.h"

namespace sim {

namespace {

constexpr double kLeastAlpha = 0.01;

double whole(CGFloat number) { return std::round(number); }

bool isForTouches(UIView *view) {
    return !state(view).recognizers.empty() || [view isKindOfClass:[UIControl class]];
}

// What cannot be seen or touched holds nothing that can.
void collect(UIView *view, const std::string &window, CGRect screen, Array &places) {
    if (![view isUserInteractionEnabled] || [view isHidden]) return;
    LayerProperties room;
    if (presented([view layer], room).opacity <= kLeastAlpha) return;
    if (isForTouches(view)) {
        const CGRect place = presentedOnScreen(view), shown = CGRectIntersection(place, screen);
        if (CGRectIntersectsRect(place, screen))
            places.push_back(Array{window, whole(CGRectGetMidX(shown)), whole(CGRectGetMidY(shown)),
                                   static_cast<int64_t>([view tag])});
    }
    for (UIView *child : drawnSubviews(view)) collect(child, window, screen, places);
}

} // namespace

Value touchablePlaces(const std::vector<std::string> &windows) {
    CGRect screen = toUpright(CGRectMake(0, 0, device().width, device().height));
    Array result;
    for (const auto &name : windows)
        for (UIWindow *window : windowsNamed(name)) collect(window, name, screen, result);
    return result;
}

} // namespace sim
