// The panel's place on every screen of the supported devices, for every anchor and both ways of holding them:
// eight tenths of the shorter side wide, ten below the item, centred, or as far from below as from the side.
#include "Tweak/Core/Geometry/PanelPlacement.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace pendix;

struct Place {
    Real x, y;
};

struct Screen {
    const char *devices;
    Size size;
    Real height, width; // the panel's, for icons of that device
    Place item, middle, bottom;
    Place turnedItem, turnedMiddle, turnedBottom; // the item at 400, 14 wide
};

const Screen kScreens[] = {
    {"iPhone 4, 4S", {320, 480}, 110, 256, {32, 30}, {32, 185}, {32, 338}, {185, 30}, {112, 105}, {112, 185}},
    {"iPhone 5, 5s", {320, 568}, 110, 256, {32, 30}, {32, 229}, {32, 426}, {185, 30}, {156, 105}, {156, 185}},
    {"iPhone 6",
     {375, 667},
     110,
     300,
     {37.5, 30},
     {37.5, 278.5},
     {37.5, 519.5},
     {141, 30},
     {183.5, 132.5},
     {183.5, 240}},
    {"iPhone 6 Plus",
     {414, 736},
     110,
     331.2,
     {41.4, 30},
     {41.4, 313},
     {41.4, 584.6},
     {109.8, 30},
     {202.4, 152},
     {202.4, 279}},
    {"iPads",
     {768, 1024},
     129,
     614.4,
     {76.8, 30},
     {76.8, 447.5},
     {76.8, 818.2},
     {-173.4, 30},
     {204.8, 319.5},
     {204.8, 614}},
};

Placement place(const Screen &screen, Anchor anchor, bool landscape, Real itemX = 400) {
    return placePanel({.item = {itemX, 0, 14, 20},
                       .screen = screen.size,
                       .landscape = landscape,
                       .anchor = anchor,
                       .height = screen.height});
}

TEST(PanelProfiles, PlacesThePanel) {
    for (const Screen &screen : kScreens) {
        struct {
            Anchor anchor;
            bool landscape;
            Place place;
        } const cases[] = {
            {Anchor::item, false, screen.item},          {Anchor::middle, false, screen.middle},
            {Anchor::bottom, false, screen.bottom},      {Anchor::item, true, screen.turnedItem},
            {Anchor::middle, true, screen.turnedMiddle}, {Anchor::bottom, true, screen.turnedBottom},
        };
        for (const auto &c : cases) {
            Placement got = place(screen, c.anchor, c.landscape);
            SCOPED_TRACE(std::string(screen.devices) + (c.landscape ? ", turned, " : ", ") +
                         std::to_string(static_cast<int>(c.anchor)));
            EXPECT_NEAR(got.panel.x, c.place.x, 1e-4);
            EXPECT_NEAR(got.panel.y, c.place.y, 1e-4);
            EXPECT_NEAR(got.panel.width, screen.width, 1e-4);
            EXPECT_EQ(got.panel.height, screen.height);
            EXPECT_EQ(got.bubble, (Rect{393, 5, 28, 50})) << "the bubble stays at the item";
            if (c.anchor != Anchor::item) EXPECT_EQ(got.bubbleAlpha, 0);
        }
    }
}

TEST(PanelProfiles, HidesTheBubbleBesideThePanel) {
    // Panel's right end less three, less the 21 points that the bubble reaches beyond the item's x.
    struct {
        size_t screen;
        Real lastShown, firstHidden;
    } const cases[] = {{0, 263.9, 264}, {2, 313.4, 313.5}, {3, 348.5, 348.7}, {4, 667.1, 667.3}};
    for (const auto &c : cases) {
        const Screen &screen = kScreens[c.screen];
        EXPECT_EQ(place(screen, Anchor::item, false, c.lastShown).bubbleAlpha, 1) << screen.devices;
        EXPECT_EQ(place(screen, Anchor::item, false, c.firstHidden).bubbleAlpha, 0) << screen.devices;
        EXPECT_EQ(place(screen, Anchor::item, true, c.firstHidden).bubbleAlpha, 1)
            << screen.devices << ", turned";
    }
}

// Growing and shrinking: centred, its lower edge or its upper edge stays, and what grew shrinks back to where
// it was.
TEST(PanelProfiles, GrowsAtItsAnchor) {
    for (const Screen &screen : kScreens) {
        const Real extent = screen.size.height, grown = screen.height + 110;
        struct {
            Anchor anchor;
            Place place;
            Real y;
        } const cases[] = {
            {Anchor::item, screen.item, screen.item.y},
            {Anchor::middle, screen.middle, screen.middle.y - 55},
            {Anchor::bottom, screen.bottom, screen.bottom.y - 110},
        };
        for (const auto &c : cases) {
            Real y = anchoredY(c.anchor, c.place.y, screen.height, grown, extent);
            EXPECT_NEAR(y, c.y, 1e-4) << screen.devices;
            EXPECT_NEAR(anchoredY(c.anchor, y, grown, screen.height, extent), c.place.y, 1e-4)
                << screen.devices;
        }
    }
}

} // namespace
