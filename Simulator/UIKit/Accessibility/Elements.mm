#include "Elements.h"

#include "AccessibilityFrames.h"
#include "ReadingOrder.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/Touch/TouchState.h"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"

#include <UIKit/UIAccessibilityElement.h>

#include <algorithm>
#include <unordered_map>

namespace sim {

namespace {

// Elements that hold each other end here.
constexpr int kDeepest = 64;

bool isView(id object) { return [object isKindOfClass:[UIView class]]; }

bool isShown(UIView *view) {
    constexpr CGFloat kLeastAlpha = 0.01;
    return ![view isHidden] && [view alpha] >= kLeastAlpha && ![view accessibilityElementsHidden];
}

bool isShownAllTheWayUp(UIView *view) {
    for (; view; view = [view superview])
        if (!isShown(view)) return false;
    return true;
}

// nil when the object leaves it to its views.
NSArray *listedBy(id object) {
    if ([object respondsToSelector:@selector(accessibilityElements)])
        if (NSArray *elements = [object accessibilityElements]) return elements;
    NSInteger count = [object accessibilityElementCount];
    if (count == NSNotFound || count <= 0) return nil;
    NSMutableArray *elements = [NSMutableArray array];
    for (NSInteger i = 0; i < count; ++i)
        if (id element = [object accessibilityElementAtIndex:i]) [elements addObject:element];
    return elements;
}

CGRect openBounds(UIView *view) {
    bool scrolls = [view isKindOfClass:[UIScrollView class]];
    return scrolls ? unobscuredBounds(static_cast<UIScrollView *>(view)) : [view bounds];
}

bool isGroup(UIView *view) {
    return [view shouldGroupAccessibilityChildren] || [view isKindOfClass:[UIScrollView class]];
}

// A screen of the system that lies in front of the element's window takes touches there.
bool isCovered(UIWindow *window, CGPoint point) {
    auto windows = displayedWindows();
    for (auto above = windows.rbegin(); above != windows.rend() && *above != window; ++above) {
        if (role(*above) != WindowRole::lock && role(*above) != WindowRole::application) continue;
        if ([*above hitTest:fromScreen(touchPoint(point), *above, nil) withEvent:nil]) return true;
    }
    return false;
}

// Looked up, never walked through.
auto &numbers() {
    static auto &known = *new std::unordered_map<id, int64_t>;
    return known;
}

class Collector {
public:
    explicit Collector(UIWindow *window) : window_(window) {}

    ReadingItems collect(id object, CGRect clip, int depth = 0) const {
        if (depth > kDeepest || (isView(object) && !isShown(object))) return {};
        if ([object isAccessibilityElement]) return single(object, clip);
        if (NSArray *elements = listedBy(object)) return listed(elements, clip, depth);
        return isView(object) ? held(object, clip, depth) : ReadingItems{};
    }

private:
    ReadingItems single(id element, CGRect clip) const {
        CGRect seen = CGRectIntersection([element accessibilityFrame], clip);
        if (CGRectIsEmpty(seen)) return {};
        if (isCovered(window_, CGPointMake(CGRectGetMidX(seen), CGRectGetMidY(seen)))) return {};
        return {{seen, {element}}};
    }

    ReadingItems listed(NSArray *elements, CGRect clip, int depth) const {
        ReadingItem all;
        for (id element in elements) {
            UIView *view = isView(element) ? element : nil;
            if (view && ([view window] != window_ || !isShownAllTheWayUp(view))) continue;
            append(all, inReadingOrder(collect(element, clip, depth + 1)));
        }
        return all.elements.empty() ? ReadingItems{} : ReadingItems{all};
    }

    ReadingItems held(UIView *view, CGRect clip, int depth) const {
        if ([view clipsToBounds]) clip = CGRectIntersection(clip, accessibilityRect(openBounds(view), view));
        ReadingItems items;
        for (UIView *subview : subviews(view))
            for (auto &item : collect(subview, clip, depth + 1)) items.push_back(std::move(item));
        if (!isGroup(view) || items.empty()) return items;
        return {inReadingOrder(std::move(items))};
    }

    UIWindow *window_;
};

UIView *modalView(UIView *view) {
    if (!isShown(view)) return nil;
    if ([view accessibilityViewIsModal]) return view;
    auto views = drawnSubviews(view);
    for (auto subview = views.rbegin(); subview != views.rend(); ++subview)
        if (UIView *found = modalView(*subview)) return found;
    return nil;
}

std::vector<id> elementsIn(UIView *view) {
    return inReadingOrder(Collector([view window]).collect(view, accessibilityScreen())).elements;
}

} // namespace

std::vector<id> accessibleElements() {
    auto windows = displayedWindows();
    std::reverse(windows.begin(), windows.end());
    for (UIWindow *window : windows)
        if (UIView *modal = modalView(window)) return elementsIn(modal);
    ReadingItems items;
    for (UIWindow *window : windows)
        items.push_back(inReadingOrder(Collector(window).collect(window, accessibilityScreen())));
    std::vector<id> elements;
    for (const auto &item : sortedByTop(items))
        elements.insert(elements.end(), item.elements.begin(), item.elements.end());
    return elements;
}

id firstElement(const std::vector<id> &elements) {
    auto isInStatusBar = [](id element) {
        UIWindow *window = [viewOfElement(element) window];
        return window && role(window) == WindowRole::statusBar;
    };
    auto first = std::ranges::find_if_not(elements, isInStatusBar);
    return first != elements.end() ? *first : elements.empty() ? nil : elements.front();
}

UIView *viewOfElement(id element) {
    for (int depth = 0; element && depth < kDeepest; ++depth) {
        if (isView(element)) return element;
        if (![element respondsToSelector:@selector(accessibilityContainer)]) return nil;
        element = [element accessibilityContainer];
    }
    return nil;
}

int64_t elementNumber(id element) {
    static int64_t last = 0;
    auto [entry, isNew] = numbers().try_emplace(element, last + 1);
    if (isNew) ++last;
    return entry->second;
}

void forgetNumber(id element) { numbers().erase(element); }

} // namespace sim
