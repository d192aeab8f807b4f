#include "ViewSearch.h"

#include "Runtime/Process/Device.hpp"
#include "Screen.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"

#include <objc/runtime.h>

#include <algorithm>
#include <functional>
#include <set>

namespace sim {

namespace {

// Calls `visit` on the view and all below it until that says true; tells whether it did.
bool walk(UIView *view, const std::function<bool(UIView *)> &visit) {
    if (visit(view)) return true;
    for (UIView *subview : drawnSubviews(view))
        if (walk(subview, visit)) return true;
    return false;
}

bool hasClass(UIView *view, const std::string &name) {
    for (Class candidate = [view class]; candidate; candidate = class_getSuperclass(candidate))
        if (name == class_getName(candidate)) return true;
    return false;
}

bool isVisible(UIView *view) {
    constexpr double kLeastAlpha = 0.01;
    CGRect screen = toUpright(CGRectMake(0, 0, device().width, device().height));
    if (!CGRectIntersectsRect(presentedOnScreen(view), screen)) return false;
    for (; view; view = [view superview])
        if ([view isHidden] || presented([view layer]).opacity <= kLeastAlpha) return false;
    return true;
}

bool isText(NSString *found, const std::string &wanted) { return found && wanted == [found UTF8String]; }

bool matches(UIView *view, const Value &query, UIView *inside, UIView *parent) {
    if (query.has("tag") && [view tag] != query["tag"].integer()) return false;
    if (query.has("class") && !hasClass(view, query["class"].string())) return false;
    if (query.has("name") && !isText([[view layer] name], query["name"].string())) return false;
    if (query.has("text") && !isText(textOf(view), query["text"].string())) return false;
    if (query.has("inside") && (view == inside || ![view isDescendantOfView:inside])) return false;
    if (query.has("parent") && [view superview] != parent) return false;
    return !query.has("visible") || isVisible(view) == query["visible"].boolean();
}

// Containers that fill the screen and show nothing would hide what lies below them.
bool showsSomething(UIView *view) {
    if (!state(view).recognizers.empty() || [view isKindOfClass:[UIControl class]] || textOf(view))
        return true;
    return [view respondsToSelector:@selector(image)] || [view backgroundColor];
}

UIView *seenBelow(UIView *view, CGPoint point) {
    constexpr double kLeastAlpha = 0.01;
    if ([view isHidden] || presented([view layer]).opacity <= kLeastAlpha) return nil;
    auto parts = drawnSubviews(view);
    for (auto part = parts.rbegin(); part != parts.rend(); ++part)
        if (UIView *found = seenBelow(*part, point)) return found;
    return showsSomething(view) && CGRectContainsPoint(presentedOnScreen(view), point) ? view : nil;
}

} // namespace

UIView *viewSeenAt(CGPoint point) {
    auto windows = visibleWindows();
    for (auto window = windows.rbegin(); window != windows.rend(); ++window)
        if (UIView *found = seenBelow(*window, point)) return found;
    return nil;
}

std::string windowName(UIWindow *window) {
    switch (role(window)) {
    case WindowRole::statusBar:
        return "statusbar";
    case WindowRole::home:
        return "home";
    case WindowRole::lock:
        return "lock";
    case WindowRole::alert:
        return "alert";
    case WindowRole::application:
        return "app";
    default:
        return "overlay";
    }
}

std::vector<UIWindow *> windowsNamed(const std::optional<std::string> &name) {
    std::vector<UIWindow *> result;
    for (UIWindow *window : allWindows())
        if ([window isHidden]) result.push_back(window);
    for (UIWindow *window : visibleWindows()) result.push_back(window);
    std::stable_sort(result.begin(), result.end(),
                     [](UIWindow *a, UIWindow *b) { return [a windowLevel] < [b windowLevel]; });
    if (name) std::erase_if(result, [&](UIWindow *window) { return windowName(window) != *name; });
    return result;
}

int64_t viewNumber(UIView *view) { return static_cast<int64_t>(state([view layer]).number); }

UIView *viewWithNumber(int64_t number) {
    UIView *found = nil;
    auto visit = [&](UIView *view) {
        if (viewNumber(view) == number) found = view;
        return found != nil;
    };
    for (UIWindow *window : allWindows())
        if (walk(window, visit)) break;
    return found;
}

Array viewClasses() {
    int count = objc_getClassList(nullptr, 0);
    std::vector<Class> classes(static_cast<size_t>(count));
    classes.resize(static_cast<size_t>(objc_getClassList(classes.data(), count)));
    std::set<std::string> names;
    for (Class candidate : classes)
        for (Class ancestor = candidate; ancestor; ancestor = class_getSuperclass(ancestor))
            if (ancestor == [UIView class]) names.insert(class_getName(candidate));
    return {names.begin(), names.end()};
}

NSString *textOf(UIView *view) {
    if (![view respondsToSelector:@selector(text)]) return nil;
    id text = [view performSelector:@selector(text)];
    return [text isKindOfClass:[NSString class]] ? text : nil;
}

std::vector<UIView *> findViews(const Value &query, bool first) {
    UIView *inside = query.has("inside") ? viewWithNumber(query["inside"].integer()) : nil;
    UIView *parent = query.has("parent") ? viewWithNumber(query["parent"].integer()) : nil;
    if ((query.has("inside") && !inside) || (query.has("parent") && !parent)) return {};
    std::optional<std::string> window;
    if (query.has("window")) window = query["window"].string();
    std::vector<UIView *> found;
    auto visit = [&](UIView *view) {
        if (matches(view, query, inside, parent)) found.push_back(view);
        return first && !found.empty();
    };
    for (UIWindow *candidate : windowsNamed(window))
        if (walk(candidate, visit)) break;
    return found;
}

} // namespace sim
