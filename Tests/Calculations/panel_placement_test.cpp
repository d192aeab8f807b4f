// The panel stands where a person expects it for every screen, anchor and way of holding the device: on the
// screen, under the indicator, in the middle or at the lower edge.
#include "Tweak/Core/Geometry/PanelPlacement.hpp"

#include <gtest/gtest.h>

namespace {

using namespace pendix;

const Size kScreens[] = {{320, 480}, {320, 568}, {375, 667}, {414, 736}, {768, 1024}};
constexpr Rect kItem = {280, 0, 13, 20};

struct Case {
    const char *what;
    Size screen;
    Rect item;
    bool landscape;
    Anchor anchor;
    Real height;
    Rect panel;
    Real bubbleAlpha;
    bool aside = false;
};

TEST(PanelPlacement, StandsWhereItIsExpected) {
    const Case cases[] = {
        {"under the item", {320, 568}, {200, 0, 14, 20}, false, Anchor::item, 96, {32, 30, 256, 96}, 1},
        {"item near the right end: no bubble",
         {320, 568},
         kItem,
         false,
         Anchor::item,
         96,
         {32, 30, 256, 96},
         0},
        {"middle", {375, 667}, kItem, false, Anchor::middle, 97, {37.5, 285, 300, 97}, 0},
        {"bottom, as far from below as from the side",
         {375, 667},
         kItem,
         false,
         Anchor::bottom,
         97,
         {37.5, 532.5, 300, 97},
         0},
        {"turned: its right end under the item",
         {320, 568},
         {500, 0, 14, 20},
         true,
         Anchor::item,
         96,
         {285, 30, 256, 96},
         1},
        {"turned, middle", {320, 568}, kItem, true, Anchor::middle, 96, {156, 112, 256, 96}, 0},
        {"turned, bottom", {320, 568}, kItem, true, Anchor::bottom, 96, {156, 199, 256, 96}, 0},
        {"let down", {375, 667}, {200, 267, 14, 20}, false, Anchor::item, 97, {37.5, 297, 300, 97}, 1},
        {"let down, too high for what is left",
         {375, 667},
         {200, 267, 14, 20},
         false,
         Anchor::item,
         400,
         {37.5, 229.5, 300, 400},
         0},
        {"let down and turned, too high for the screen",
         {375, 667},
         {500, 150, 14, 20},
         true,
         Anchor::item,
         360,
         {241, 30, 300, 360},
         0},
        {"upside down, the bar below",
         {320, 568},
         {40, 548, 14, 20},
         false,
         Anchor::item,
         96,
         {32, 440, 256, 96},
         0,
         true},
        {"turned, the bar at the left",
         {320, 568},
         {0, 60, 20, 14},
         true,
         Anchor::item,
         96,
         {30, 84, 256, 96},
         0,
         true},
        {"turned, the bar at the right",
         {320, 568},
         {548, 250, 20, 14},
         true,
         Anchor::item,
         96,
         {282, 199, 256, 96},
         0,
         true},
        {"turned, the bar at the right, bottom",
         {320, 568},
         {548, 250, 20, 14},
         true,
         Anchor::bottom,
         96,
         {156, 199, 256, 96},
         0,
         true},
    };
    for (const Case &c : cases) {
        Placement placed = placePanel({.item = c.item,
                                       .screen = c.screen,
                                       .landscape = c.landscape,
                                       .anchor = c.anchor,
                                       .height = c.height,
                                       .aside = c.aside});
        EXPECT_EQ(placed.panel, c.panel) << c.what << ": " << placed.panel.x << " " << placed.panel.y;
        EXPECT_EQ(placed.bubbleAlpha, c.bubbleAlpha) << c.what;
    }
}

TEST(PanelPlacement, BubbleReachesBehindTheItem) {
    Placement placed = placePanel({.item = {200, 0, 14, 20}, .screen = {320, 568}, .height = 96});
    EXPECT_EQ(placed.bubble, (Rect{193, 5, 28, 50}));
    placed = placePanel({.item = {200, 267, 14, 20}, .screen = {375, 667}, .height = 96});
    EXPECT_EQ(placed.bubble, (Rect{193, 272, 28, 50})) << "let down with it";
}

TEST(PanelPlacement, StaysOnEveryScreen) {
    for (Size screen : kScreens) {
        for (Anchor anchor : {Anchor::item, Anchor::middle, Anchor::bottom}) {
            for (bool landscape : {false, true}) {
                Real width = landscape ? screen.height : screen.width;
                Real height = landscape ? screen.width : screen.height;
                Placement placed = placePanel({.item = {width - 60, 0, 14, 20},
                                               .screen = screen,
                                               .landscape = landscape,
                                               .anchor = anchor,
                                               .height = 130});
                EXPECT_GE(placed.panel.x, 0);
                EXPECT_GE(placed.panel.y, 0);
                EXPECT_LE(placed.panel.x + placed.panel.width, width);
                EXPECT_LE(placed.panel.y + placed.panel.height, height);
            }
        }
    }
}

TEST(PanelPlacement, AnchorFollowsSettingsBeforeReachability) {
    struct {
        bool rech;
        Position position;
        bool reachability;
        Anchor expected;
    } const cases[] = {
        {false, Position::top, false, Anchor::item},     {false, Position::middle, false, Anchor::item},
        {false, Position::top, true, Anchor::bottom},    {false, Position::middle, true, Anchor::bottom},
        {true, Position::top, true, Anchor::item},       {true, Position::middle, true, Anchor::middle},
        {true, Position::bottom, false, Anchor::bottom}, {true, Position::middle, false, Anchor::middle},
    };
    for (const auto &c : cases) EXPECT_EQ(anchorFor(c.rech, c.position, c.reachability), c.expected);
}

TEST(PanelPlacement, GrowsOutOfTheItemsBottomCentre) {
    EXPECT_EQ(growthPoint({200, 0, 14, 20}), (Rect{207.5, 15, 1, 1}));
}

} // namespace
