#include "Tweak/Core/Geometry/PanelPlacement.hpp"

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
    return {item.x - item.width / 2, kBubbleTop, 2 * item.width, 2 * item.height + kBubbleBelow};
}

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

Placement placePanel(const PlacementInput &input) {
    const Real W = input.screen.width, H = input.screen.height, h = input.height;
    const Real width = W * kWidthShare / 10;
    const Rect bubble = bubbleFrame(input.item);
    const Real bubbleEnd = bubble.x + bubble.width;
    const Real margin = input.landscape ? bubbleEnd - width + kLandscapeShift : W / 10;

    Placement result{{margin, input.item.height + kBelowItem, width, h}, bubble, 1};
    if (!input.landscape && bubbleEnd >= margin + width - kBubbleMargin) result.bubbleAlpha = 0;
    if (input.anchor == Anchor::item) return result;

    result.bubbleAlpha = 0;
    if (input.anchor == Anchor::middle) {
        result.panel.x = ((input.landscape ? H : W) - width) / 2;
        result.panel.y = ((input.landscape ? W : H) - h) / 2;
    } else if (input.landscape) {
        result.panel.x = (H - width) / 2;
        result.panel.y = W - h - kLandscapeBottom;
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
