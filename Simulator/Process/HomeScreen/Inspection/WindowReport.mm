#include "WindowReport.h"

#include "Process/Shared/Screen.h"
#include "Process/Shared/ViewAnimations.h"
#include "Process/Shared/ViewSearch.h"
#include "Process/Shared/ViewSnapshot.h"
#include "Runtime/Process/Device.hpp"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/CoreGraphics/CGGeometry+Further.h"
#include "UIKit/Touch/TouchInput.h"
#include "UIKit/Views/ViewState.h"

#include <algorithm>
#include <cmath>

namespace sim {

namespace {

constexpr double kLeastAlpha = 0.01;

bool isFinite(CGRect rect) {
    return std::isfinite(rect.origin.x) && std::isfinite(rect.origin.y) && std::isfinite(rect.size.width) &&
           std::isfinite(rect.size.height);
}

bool isFinite(const LayerProperties &layer) {
    const CATransform3D &t = layer.transform;
    for (CGFloat element : {t.m11, t.m12, t.m21, t.m22, t.m41, t.m42})
        if (!std::isfinite(element)) return false;
    return isFinite(layer.bounds) && std::isfinite(layer.position.x) && std::isfinite(layer.position.y) &&
           std::isfinite(layer.opacity) && std::isfinite(layer.cornerRadius) && isFinite(layer.frame());
}

// What a view inherits from those around it, in points of the screen held in portrait.
struct Surroundings {
    CGAffineTransform toScreen = CGAffineTransformIdentity;
    CGRect clip;
    bool seen;
    int64_t depth = 0;
};

bool ends(const LayerAnimation &animation) {
    return !animation.over && std::isfinite(static_cast<double>(animation.timing.repeatCount));
}

void addRect(Array &fields, CGRect rect) {
    if (!isFinite(rect)) rect = CGRectZero;
    for (CGFloat number : {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height})
        fields.emplace_back(rounded(number));
}

Value textValue(NSString *string) { return string ? Value([string UTF8String]) : Value(); }

void report(UIView *view, Surroundings around, Array &views) {
    const LayerState &layer = state([view layer]);
    const LayerProperties now = presented([view layer]);
    bool finite = isFinite(layer.model) && isFinite(now);
    around.toScreen = CGAffineTransformConcat(now.toSuperlayer(), around.toScreen);
    CGRect place = CGRectApplyAffineTransform(now.bounds, around.toScreen);
    around.seen = around.seen && !now.hidden && now.opacity > kLeastAlpha;
    bool seen = around.seen && CGRectIntersectsRect(place, around.clip);
    Array fields{around.depth,
                 object_getClassName(view),
                 static_cast<int64_t>([view tag]),
                 seen,
                 finite,
                 static_cast<bool>([view isUserInteractionEnabled])};
    addRect(fields, toUpright(place));
    addRect(fields, layer.model.frame());
    fields.push_back(textValue([[view layer] name]));
    fields.push_back(textValue(textOf(view)));
    fields.push_back(imageOf(view));
    fields.emplace_back(state(view).recognizers.size());
    fields.emplace_back(std::ranges::any_of(layer.animations, ends));
    for (Value &look : lookOf(view)) fields.push_back(std::move(look));
    views.emplace_back(std::move(fields));
    if (now.masksToBounds) around.clip = CGRectIntersection(around.clip, place);
    ++around.depth;
    for (UIView *child : drawnSubviews(view)) report(child, around, views);
}

int64_t touchablePoints(UIWindow *window) {
    int64_t touchable = 0;
    // Says so itself, without a search of all that lies below.
    if (![window isUserInteractionEnabled] || [window isHidden]) return 0;
    for (double across : {0.1, 0.5, 0.9})
        for (double down : {0.1, 0.5, 0.9}) {
            UIView *view = touchTarget(CGPointMake(across * device().width, down * device().height));
            if (view && (view == window || [view window] == window)) ++touchable;
        }
    return touchable;
}

} // namespace

Value windowCounts() {
    Object counts;
    for (UIWindow *window : allWindows()) {
        Value &count = counts[windowName(window)];
        count = count.isNull() ? 1 : count.integer() + 1;
    }
    return counts;
}

Value windowReport(UIWindow *window) {
    std::vector<UIWindow *> displayed = displayedWindows();
    CGRect screen = CGRectMake(0, 0, device().width, device().height);
    bool shown = std::ranges::find(displayed, window) != displayed.end();
    Array views;
    report(window, {.clip = screen, .seen = shown}, views);
    return Object{{"interactive", static_cast<bool>([window isUserInteractionEnabled])},
                  {"hidden", static_cast<bool>([window isHidden])},
                  {"touchable", touchablePoints(window)},
                  {"views", views}};
}

} // namespace sim
