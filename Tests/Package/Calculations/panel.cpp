#include "ReportRect.hpp"
#include "Tweak/Core/Geometry/PanelPlacement.hpp"

namespace {

using namespace pendix;

constexpr Size kScreens[] = {{320, 480}, {320, 568}, {375, 667}, {414, 736}, {768, 1024}};
constexpr Rect kItems[] = {{200, 0, 14, 20}, {280, 0, 13, 20}, {41.5f, 203, 16, 24}};

void placement(results::Report report, const PlacementInput &input) {
    const Placement placed = placePanel(input);
    results::reportRect(report, "placePanel panel", placed.panel);
    results::reportRect(report, "placePanel bubble", placed.bubble);
    report("placePanel bubbleAlpha", placed.bubbleAlpha);
    report("hangingY", hangingY(input.item, input.height, input.screen, input.landscape));
    report("anchoredY", anchoredY(input.anchor, placed.panel.y, input.height, input.height + 31.5f,
                                  input.landscape ? input.screen.width : input.screen.height));
}

} // namespace

void results::panel(Report report) {
    for (bool rech : {false, true}) {
        for (Position position : {Position::top, Position::middle, Position::bottom}) {
            for (bool reachability : {false, true}) {
                report("anchorFor", static_cast<int>(anchorFor(rech, position, reachability)));
            }
        }
    }
    for (const Rect &item : kItems) {
        reportRect(report, "growthPoint", growthPoint(item));
        for (Size screen : kScreens) {
            for (bool landscape : {false, true}) {
                for (Anchor anchor : {Anchor::item, Anchor::middle, Anchor::bottom}) {
                    placement(report, {item, screen, landscape, anchor, 97, false});
                    placement(report, {item, screen, landscape, anchor, 97, true});
                }
            }
        }
    }
}
