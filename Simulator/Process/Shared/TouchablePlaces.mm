#include "TouchablePlaces.h"

#include "Runtime/Process/Device.hpp"
#include "Screen.h"
#include "UIKit/CoreGraphics/CGGeometry+Further.h"
#include "UIKit/Views/ViewState.h"
#include "ViewSearch.h"

namespace sim {

namespace {

bool takesTouches(UIView *view) {
    if (state(view).recognizers.empty() && ![view isKindOfClass:[UIControl class]]) return false;
    for (; view; view = [view superview])
        if (![view isUserInteractionEnabled]) return false;
    return true;
}

double whole(CGFloat number) { return std::round(number); }

} // namespace

Value touchablePlaces(const std::vector<std::string> &windows) {
    CGRect screen = toUpright(CGRectMake(0, 0, device().width, device().height));
    Array result;
    for (const auto &window : windows) {
        for (UIView *view : findViews(Object{{"window", window}, {"visible", true}}, false)) {
            if (!takesTouches(view)) continue;
            CGRect shown = CGRectIntersection(presentedOnScreen(view), screen);
            result.push_back(Array{window, whole(CGRectGetMidX(shown)), whole(CGRectGetMidY(shown)),
                                   static_cast<int64_t>([view tag])});
        }
    }
    return result;
}

} // namespace sim
