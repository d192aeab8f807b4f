// A mistyped name is answered with the one that was meant, and with none when nothing is near.
#include "Supervisor/Text/Suggest.hpp"

#include <gtest/gtest.h>

namespace {

TEST(Suggest, NamesTheNearestWord) {
    const std::vector<std::string> known = {
        "device",     "ios",  "language",      "settings",   "settings_text", "apps",         "badge",
        "text_color", "tint", "corner_radius", "foreground", "rotate",        "hide_classes", "x"};
    struct {
        const char *typed, *meant;
    } const cases[] = {
        {"devcie", "device"},
        {"Device", "device"},
        {"IOS", "ios"},
        {"langauge", "language"},
        {"setings", "settings"},
        {"setting", "settings"},
        {"textcolor", "text_color"},
        {"cornerradius", "corner_radius"},
        {"hide_class", "hide_classes"},
        {"fore", "foreground"},
        {"rotat", "rotate"},
        {"app", "apps"},
        {"colour", ""},
        {"q", ""},
        {"", ""},
        {"zzzzzzzzzz", ""},
        {"y", ""},
    };
    for (const auto &test : cases) EXPECT_EQ(sim::nearest(test.typed, known), test.meant) << test.typed;
}

TEST(Suggest, DistanceIsAMetricOnItsCases) {
    const std::vector<std::string> words = {"", "a", "ab", "ba", "badge", "bagde", "badges", "language"};
    for (const auto &a : words) {
        EXPECT_EQ(sim::editDistance(a, a), 0u);
        EXPECT_EQ(sim::editDistance(a, ""), a.size());
        for (const auto &b : words)
            EXPECT_EQ(sim::editDistance(a, b), sim::editDistance(b, a)) << a << ' ' << b;
    }
    EXPECT_EQ(sim::editDistance("badge", "bagde"), 1u) << "neighbours that changed places are one mistake";
}

} // namespace
