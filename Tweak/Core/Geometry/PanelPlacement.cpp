#include "Tweak/Core/Geometry/PanelPlacement.hpp"

#include <algorithm>

namespace pendix {

namespace {

constexpr Real kWidthShare = 8; // tenths of the screen's shorter side
constexpr Real kBelowItem = 10; // between the item's bottom and the panel
constexpr Real kBubbleTop = 5;
constexpr Real kBubbleBelow = 10; // beyond twice the item's height
constexpr Real kBubbleMargin = 3; // from the panel's right end
constexpr Real kLandscapeShift = 20;
constexpr Real kLandscapeBottom = 25;
constexpr Real kGrowthAboveBottom = 5;

Rect bubbleFrame(const Rect &item) {
    return {item.x - item.width / 2, item.y + kBubbleTop, 2 * item.width, 2 * item.height + kBubbleBelow};
}

// Of a panel that hangs on the indicator of a turned screen. One that lies aside has its bar running along
// the panel's side; the wider part of the screen beside it has room.
Real turnedX(const PlacementInput &input, Real width) {
    const Rect &item = input.item, bubble = bubbleFrame(item);
    const Real end = item.x + item.width;
    if (!input.aside) return bubble.x + bubble.width - width + kLandscapeShift;
    return input.screen.height - end > item.x ? end + kBelowItem : item.x - kBelowItem - width;
}

// What a panel that does not hang on the indicator keeps from the screen's edges.
Real edgeMargin(Size screen, bool landscape) { return landscape ? kLandscapeBottom : screen.width / 10; }

} // namespace

Anchor anchorFor(bool rech, Position position, bool reachability) {
    if (!rech) return reachability ? Anchor::bottom : Anchor::item;
    switch (position) {
    case Position::middle:
        return Anchor::middle;
    case Position::bottom:
        return Anchor::bottom;
    case Position::top:
        break;
    }
    return Anchor::item;
}

Real hangingY(const Rect &item, Real height, Size screen, bool landscape) {
    const Real extent = landscape ? screen.width : screen.height;
    const Real lowest = extent - height - edgeMargin(screen, landscape);
    return std::min(item.y + item.height + kBelowItem, std::max(lowest, item.height + kBelowItem));
}

Placement placePanel(const PlacementInput &input) {
    const Real W = input.screen.width, H = input.screen.height, h = input.height;
    const Real width = W * kWidthShare / 10;
    const Rect bubble = bubbleFrame(input.item);
    const Real margin = edgeMargin(input.screen, input.landscape);
    const Real under = input.item.y + input.item.height + kBelowItem;

    Placement result{{W / 10, hangingY(input.item, h, input.screen, input.landscape), width, h}, bubble, 1};
    if (input.landscape) result.panel.x = turnedX(input, width);
    const bool sticksOut =
        !input.landscape && bubble.x + bubble.width >= result.panel.x + width - kBubbleMargin;
    if (sticksOut || input.aside || result.panel.y < under) result.bubbleAlpha = 0;
    if (input.anchor == Anchor::item) return result;

    result.bubbleAlpha = 0;
    if (input.anchor == Anchor::middle) {
        result.panel.x = ((input.landscape ? H : W) - width) / 2;
        result.panel.y = ((input.landscape ? W : H) - h) / 2;
    } else if (input.landscape) {
        result.panel.x = (H - width) / 2;
        result.panel.y = W - h - margin;
    } else {
        result.panel.y = H - h - margin;
    }
    return result;
}

Real anchoredY(Anchor anchor, Real y, Real height, Real newHeight, Real screenExtent) {
    switch (anchor) {
    case Anchor::middle:
        return (screenExtent - newHeight) / 2;
    case Anchor::bottom:
        return y - (newHeight - height);
    case Anchor::item:
        break;
    }
    return y;
}

Rect growthPoint(const Rect &item) {
    return {item.x + (item.width + 1) / 2, item.y + item.height - kGrowthAboveBottom, 1, 1};
}

} // namespace pendix
