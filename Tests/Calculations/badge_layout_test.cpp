// A badge sits on its icon's corner and holds its text.
#include "Tweak/Core/Geometry/BadgeLayout.hpp"

#include <gtest/gtest.h>

namespace {

using namespace pendix;

TEST(BadgeLayout, SitsOnTheCorner) {
    struct {
        const char *what;
        Rect icon;
        Real text, height;
        Rect badge;
    } const cases[] = {
        {"one digit: round", {0, 0, 60, 60}, 9, 24, {44, -8, 24, 24}},
        {"five points to spare are needed", {0, 0, 60, 60}, 18.9, 24, {44, -8, 24, 24}},
        {"and nothing less", {0, 0, 60, 60}, 19, 24, {40.5, -8, 31, 24}},
        {"999+", {0, 0, 60, 60}, 38, 24, {31, -8, 50, 24}},
        {"an icon elsewhere", {10, 20, 76, 76}, 9, 24, {70, 12, 24, 24}},
        {"a higher badge", {0, 0, 60, 60}, 20, 30, {41, -11, 30, 30}},
        {"no text", {0, 0, 60, 60}, 0, 24, {44, -8, 24, 24}},
    };
    for (const auto &c : cases) EXPECT_EQ(badgeFrame(c.icon, c.text, c.height), c.badge) << c.what;
}

TEST(BadgeLayout, HasTheUsualHeightUntilOneWasSeen) {
    EXPECT_EQ(badgeHeightOr(0), 24);
    EXPECT_EQ(badgeHeightOr(26), 26);
}

} // namespace
