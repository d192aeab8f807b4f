#include "WindowReport.h"

#include "Process/Shared/RowFields.h"
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

void putPlace(RowWriter &row, CGRect rect) { putRect(row, isFinite(rect) ? rect : CGRectZero); }

void putLook(RowWriter &row, const ViewLook &look) {
    row.put(look.alpha);
    row.put(look.background);
    row.put(look.cornerRadius);
    row.put(look.borderWidth);
    row.put(look.ink);
    row.put(look.fontSize);
    row.put(look.picture);
    row.put(look.scrolled);
    row.put(look.contentWidth);
}

class Reporter {
public:
    explicit Reporter(RowWriter &rows) : rows_(rows) {}
    int64_t count() const { return count_; }

    void report(UIView *view, Surroundings around) {
        const LayerState &layer = state([view layer]);
        LayerProperties moving;
        const LayerProperties &now = presented([view layer], moving);
        around.toScreen = CGAffineTransformConcat(now.toSuperlayer(), around.toScreen);
        const CGRect place = CGRectApplyAffineTransform(now.bounds, around.toScreen);
        around.seen = around.seen && !now.hidden && now.opacity > kLeastAlpha;
        put(view, layer, now, around, place);
        if (now.masksToBounds) around.clip = CGRectIntersection(around.clip, place);
        ++around.depth;
        for (UIView *child : drawnSubviews(view)) report(child, around);
    }

private:
    void put(UIView *view, const LayerState &layer, const LayerProperties &now, const Surroundings &around,
             CGRect place) {
        ++count_;
        rows_.put(around.depth);
        rows_.put(std::string_view(object_getClassName(view)));
        rows_.put(static_cast<int64_t>([view tag]));
        rows_.put(around.seen && static_cast<bool>(CGRectIntersectsRect(place, around.clip)));
        rows_.put(isFinite(layer.model) && isFinite(now));
        rows_.put(static_cast<bool>([view isUserInteractionEnabled]));
        putPlace(rows_, toUpright(place));
        putPlace(rows_, layer.model.frame());
        putText(rows_, [[view layer] name]);
        putText(rows_, textOf(view));
        putText(rows_, imageOf(view));
        rows_.put(static_cast<int64_t>(state(view).recognizers.size()));
        rows_.put(std::ranges::any_of(layer.animations, ends));
        putLook(rows_, lookOf(view, now));
        rows_.endRow();
    }

    RowWriter &rows_;
    int64_t count_ = 0;
};

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

Value windowReport(UIWindow *window, RowWriter &rows) {
    std::vector<UIWindow *> displayed = displayedWindows();
    CGRect screen = CGRectMake(0, 0, device().width, device().height);
    bool shown = std::ranges::find(displayed, window) != displayed.end();
    Reporter reporter(rows);
    reporter.report(window, {.clip = screen, .seen = shown});
    return Object{{"interactive", static_cast<bool>([window isUserInteractionEnabled])},
                  {"hidden", static_cast<bool>([window isHidden])},
                  {"touchable", touchablePoints(window)},
                  {"views", reporter.count()}};
}

} // namespace sim
