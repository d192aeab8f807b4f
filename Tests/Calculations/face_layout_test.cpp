// The lock faces fit: keys stand in a centred grid, inside the panel and apart from one another, on every
// screen, and a turned screen shrinks them no further than it must.
#include "Tweak/Core/Geometry/PanelPlacement.hpp"
#include "Tweak/Lock/FaceLayout.hpp"

#include <gtest/gtest.h>

namespace {

using namespace pendix;

const Size kScreens[] = {{320, 480}, {320, 568}, {375, 667}, {414, 736}, {768, 1024}};

FaceInput faceOn(Size screen, bool landscape, bool sensor) {
    return {.width = screen.width * 8 / 10, .screen = screen, .landscape = landscape, .sensor = sensor};
}

bool apart(const Rect &a, const Rect &b) {
    return a.x + a.width <= b.x || b.x + b.width <= a.x || a.y + a.height <= b.y || b.y + b.height <= a.y;
}

TEST(FaceLayout, KeypadHasItsAgreedSizes) {
    struct {
        Size screen;
        Real key, firstX, firstY, secondX, secondY, dotX, height;
    } const cases[] = {
        {{320, 568}, 55, 25.5, 75, 100.5, 140, 96, 385},
        {{375, 667}, 65, 27.5, 75, 117.5, 152.5, 118, 432.5},
    };
    for (const auto &c : cases) {
        KeypadLayout keypad = keypadLayout(faceOn(c.screen, false, false));
        EXPECT_EQ(keypad.keys[1], (Rect{c.firstX, c.firstY, c.key, c.key}));
        EXPECT_EQ(keypad.keys[5], (Rect{c.secondX, c.secondY, c.key, c.key}));
        EXPECT_EQ(keypad.dots[0], (Rect{c.dotX, 50, 10, 10}));
        EXPECT_EQ(keypad.dots[3].x, c.dotX + 54);
        EXPECT_EQ(keypad.height, c.height);
        EXPECT_EQ(keypad.button, (Rect{0, c.height - 45, c.screen.width * 8 / 10, 45}));
        EXPECT_EQ(keypad.fingerButton.width, 0);
    }
}

TEST(FaceLayout, KeysStandApartOnEveryScreen) {
    for (Size screen : kScreens) {
        for (bool landscape : {false, true}) {
            FaceInput input = faceOn(screen, landscape, true);
            KeypadLayout keypad = keypadLayout(input);
            for (size_t i = 0; i < keypad.keys.size(); ++i) {
                const Rect &key = keypad.keys[i];
                EXPECT_GE(key.x, 0);
                EXPECT_LE(key.x + key.width, input.width);
                EXPECT_TRUE(apart(key, keypad.dots[0]) && apart(key, keypad.button));
                for (size_t j = 0; j < i; ++j) EXPECT_TRUE(apart(key, keypad.keys[j])) << i << " and " << j;
            }
            // 0 stands under 8, and the grid in the middle.
            EXPECT_EQ(keypad.keys[0].x, keypad.keys[8].x);
            EXPECT_NEAR(keypad.keys[5].x + keypad.keys[5].width / 2, input.width / 2, 0.001);
            EXPECT_NEAR(keypad.button.width + 1 + keypad.fingerButton.width, input.width, 0.001);
        }
    }
}

// Wherever the panel is anchored.
TEST(FaceLayout, ATurnedScreenHoldsTheKeypad) {
    for (Size screen : kScreens) {
        KeypadLayout upright = keypadLayout(faceOn(screen, false, true));
        KeypadLayout turned = keypadLayout(faceOn(screen, true, true));
        EXPECT_EQ(upright.scale, 1);
        for (Anchor anchor : {Anchor::item, Anchor::middle, Anchor::bottom}) {
            Rect panel = placePanel({.item = {screen.height - 60, 0, 14, 20},
                                     .screen = screen,
                                     .landscape = true,
                                     .anchor = anchor,
                                     .height = turned.height})
                             .panel;
            EXPECT_GE(panel.y, 0);
            EXPECT_LE(panel.y + panel.height, screen.width);
        }
        if (upright.height + 35 <= screen.width) {
            EXPECT_EQ(turned.scale, 1) << "there is room";
        } else {
            EXPECT_NEAR(turned.height, screen.width - 35, 0.001) << "no smaller than it must";
            EXPECT_GE(turned.keys[1].width, 30) << "a fingertip finds the key";
        }
    }
}

TEST(FaceLayout, OtherFacesEndWithTheirButtons) {
    FingerLayout finger = fingerLayout(300);
    EXPECT_EQ(finger.glyph, (Rect{117.5, 50, 65, 65}));
    EXPECT_EQ(finger.cancel, (Rect{0, 135, 149.5, 45}));
    EXPECT_EQ(finger.passcode, (Rect{150.5, 135, 149.5, 45}));
    EXPECT_EQ(finger.height, 180);
    for (Real text : {24.0, 48.0, 96.0}) {
        AskLayout ask = askLayout(300, static_cast<Real>(text));
        EXPECT_GE(ask.message.height, text);
        EXPECT_TRUE(apart(ask.message, ask.button));
        EXPECT_EQ(ask.button.y + ask.button.height, ask.height);
    }
}

} // namespace
