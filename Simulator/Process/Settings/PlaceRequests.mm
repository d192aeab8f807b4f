// Where on the screen a finger finds things. Points are of the screen seen upright.
#include "PageRows.h"
#include "SettingsRequests.h"

#include "Preferences/Application/SettingsApplication.h"
#include "Preferences/Lists/PSListController+Further.h"
#include "Process/Shared/Screen.h"
#include "Process/Shared/ViewSearch.h"
#include "UIKit/Alerts/AlertPanel.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/Controllers/Rotation.h"
#include "UIKit/Navigation/NavigationState.h"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"

#include <UIKit/UIDevice.h>

#include <algorithm>

namespace sim {

namespace {

Object centre(CGRect rect) { return {{"x", CGRectGetMidX(rect)}, {"y", CGRectGetMidY(rect)}}; }

Object area(CGRect rect) {
    return {{"x", rect.origin.x}, {"y", rect.origin.y}, {"w", rect.size.width}, {"h", rect.size.height}};
}

// The part of the table that nothing covers.
CGRect uncovered(UITableView *table) {
    CGRect frame = presentedOnScreen(table);
    CGFloat top = [table contentInset].top;
    return CGRectMake(frame.origin.x, frame.origin.y + top, frame.size.width, frame.size.height - top);
}

// The control of a row, or one of its segments; nil when the row is off screen or has none such.
UIView *controlIn(PSListController *list, const PageRow &row, const std::string &segment) {
    id cell = [list cachedCellForSpecifier:row.specifier];
    if (![cell isKindOfClass:[PSControlTableCell class]]) return nil;
    UIControl *control = [static_cast<PSControlTableCell *>(cell) control];
    if (segment.empty()) return control;
    auto *segments = static_cast<UISegmentedControl *>(control);
    for (NSUInteger i = 0; i < [segments numberOfSegments]; ++i)
        if (segment == [[segments titleForSegmentAtIndex:i] UTF8String])
            return [[segments subviews] objectAtIndex:i];
    return nil;
}

Object placeOf(PSListController *list, const PageRow &row, const Value &arguments) {
    UITableView *table = [list table];
    CGRect inTable = [table rectForRowAtIndexPath:row.path];
    CGRect onScreen = toUpright([table convertRect:inTable toView:nil]);
    if (UIWindow *window = [table window]) {
        CGRect bounds = [table convertRect:inTable toView:window];
        onScreen = toUpright(CGRectApplyAffineTransform(bounds, presented([window layer]).toSuperlayer()));
    }
    Object result = centre(onScreen);
    result["area"] = area(uncovered(table));
    if (!arguments.has("control")) return result;
    std::string segment = arguments.has("segment") ? arguments["segment"].string() : "";
    if (UIView *control = controlIn(list, row, segment)) {
        Object point = centre(presentedOnScreen(control));
        result["x"] = point["x"];
        result["control"] = true;
    }
    return result;
}

// {"label", and "kinds": which may be meant; "control": true for its control, "segment": one of its titles}:
// {"x", "y", "kind", "area": the part of the table that can be seen; "control": true when it is there}. null
// without such a row.
Value placeRow(const Value &arguments) {
    PSListController *list = frontList();
    if (!list) return {};
    const auto &kinds = arguments["kinds"].array();
    for (const auto &row : pageRows(list)) {
        if (row.label != arguments["label"].string()) continue;
        if (!std::count(kinds.begin(), kinds.end(), Value(row.kind))) continue;
        Object result = placeOf(list, row, arguments);
        result["kind"] = row.kind;
        return result;
    }
    return {};
}

bool isTitled(UIView *view, const std::string &title) {
    NSString *own = nil;
    if ([view isKindOfClass:[UIButton class]]) own = [static_cast<UIButton *>(view) currentTitle];
    if ([view isKindOfClass:[UINavigationButton class]])
        own = [static_cast<UINavigationButton *>(view) title];
    return own && title == [own UTF8String];
}

UIView *findButton(UIView *view, const std::string &title) {
    auto views = subviews(view);
    for (auto child = views.rbegin(); child != views.rend(); ++child)
        if (UIView *found = findButton(*child, title)) return found;
    return isTitled(view, title) ? view : nil;
}

// A button with text on it, in the window on top that has one; an alert lets nothing else be pressed.
// {"title"}: {"x", "y"}, or null.
Value placeButton(const Value &arguments) {
    auto windows = visibleWindows();
    for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
        if (role(*window) == WindowRole::statusBar) continue;
        if (UIView *found = findButton(*window, arguments["title"].string()))
            return centre(presentedOnScreen(found));
        if (role(*window) == WindowRole::alert) return {};
    }
    return {};
}

UIView *findKind(UIView *view, Class wanted) {
    auto views = subviews(view);
    for (auto child = views.rbegin(); child != views.rend(); ++child)
        if (UIView *found = findKind(*child, wanted)) return found;
    return [view isKindOfClass:wanted] ? view : nil;
}

Value placeBack(const Value &) {
    UINavigationController *navigation = [frontPage() navigationController];
    UIView *bar = [navigation navigationBar]; // none on a page that was presented by itself
    UIView *found = bar ? findKind(bar, [UINavigationItemButtonView class]) : nil;
    return found ? Value(centre(presentedOnScreen(found))) : Value();
}

UIView *findPages(UIView *view) {
    for (UIView *child : subviews(view))
        if (UIView *found = findPages(child)) return found;
    bool pages =
        [view isKindOfClass:[UIScrollView class]] && [static_cast<UIScrollView *>(view) isPagingEnabled];
    return pages ? view : nil;
}

// The part of the pages that is on screen: {"x", "y", "w", "h"}, or null.
Value placeCards(const Value &) {
    UIView *pages = findPages([frontPage() view]);
    if (!pages) return {};
    CGRect whole = presentedOnScreen(pages), screen = [[UIScreen mainScreen] bounds];
    screen.origin.y = 64;
    screen.size.height -= 64;
    CGRect seen = CGRectIntersection(whole, screen);
    return CGRectIsEmpty(seen) ? Value() : Value(area(seen));
}

// {"orientation": 1 to 4}
Value rotate(const Value &arguments) {
    auto orientation = static_cast<NSInteger>(arguments["orientation"].integer());
    // The device's "left" is the interface's "right", under the same number.
    setDeviceOrientation(orientation);
    turnInterface(orientation);
    return {};
}

} // namespace

std::span<const Request> placeRequests() {
    static const Request requests[] = {{"place_row", placeRow},
                                       {"place_button", placeButton},
                                       {"place_back", placeBack},
                                       {"place_cards", placeCards},
                                       {"rotate", rotate}};
    return requests;
}

} // namespace sim
