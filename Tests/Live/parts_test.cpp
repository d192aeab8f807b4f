// What the live page's server calculates: the texts of recorded scripts, the areas that a page has not seen,
// the frames that are due.
#include "Tools/Live/FrameParts.hpp"
#include "Tools/Live/Journal.hpp"
#include "Tools/Live/LiveClock.hpp"
#include "Tools/Live/LuaText.hpp"
#include "Tools/Live/Packing.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>

namespace {

using sim::Array;
using sim::Object;
using sim::PictureArea;
using sim::Value;

TEST(LuaText, ValuesAreWrittenExactly) {
    const std::pair<Value, const char *> cases[] = {
        {nullptr, "nil"},
        {true, "true"},
        {-3, "-3"},
        {3.0, "3.0"},
        {0.1, "0.1"},
        {1.0 / 3, "0.3333333333333333"},
        {1e300, "1e+300"},
        {std::numeric_limits<double>::infinity(), "math.huge"},
        {"a\"b\\c\n\r7", "\"a\\\"b\\\\c\\010\\0137\""},
        {"è", "\"è\""},
        {Array{1, "x", Array{}}, "{1, \"x\", {}}"},
        {Object{{"end", 1}, {"a b", 2}, {"ok_1", 3}, {"1a", 4}},
         "{[\"1a\"] = 4, [\"a b\"] = 2, [\"end\"] = 1, ok_1 = 3}"},
    };
    for (const auto &[value, text] : cases) EXPECT_EQ(sim::luaText(value), text);
    EXPECT_THROW(sim::luaText(sim::Data{"x"}), sim::ValueError);
    EXPECT_EQ(sim::luaCall("home", {}), "phone:home()");
    EXPECT_EQ(sim::luaCall("set", {Object{{"a", 1}}}), "phone:set{a = 1}");
    EXPECT_EQ(sim::luaCall("down", {Array{1, 2}, 2}), "phone:down({1, 2}, 2)");
}

TEST(Journal, ATouchThatOthersInterruptStaysInParts) {
    sim::Journal journal(Value{});
    journal.takeChange();
    constexpr int64_t second = 1'000'000'000;
    journal.addDown(second, "{1, 2}", 1);
    journal.add(second, "phone:home()");
    journal.addUp(2 * second, 1);
    journal.addDown(3 * second, "{5, 6}", 2);
    journal.addUp(4 * second, 2);
    EXPECT_EQ(journal.takeChange(), 2u);
    journal.addDown(5 * second, "it", 1, "pane", "pane:open(\"It\")");
    size_t withDown = journal.lines().size();
    EXPECT_EQ(journal.takeChange(), withDown - 2) << "the wait and the touch";
    journal.addUp(5 * second + second / 10, 1);
    EXPECT_EQ(journal.takeChange(), withDown - 1) << "the touch reads otherwise now";
    std::string text = journal.script(6 * second);
    EXPECT_EQ(text.substr(text.find("\nphone") + 1),
              "phone:wait(1)\nphone:down{1, 2}\nphone:home()\nphone:wait(1)\nphone:up()\nphone:wait(1)\n"
              "phone:down({5, 6}, 2)\nphone:wait(1)\nphone:up(2)\nphone:wait(1)\npane:open(\"It\")\n"
              "phone:wait(0.9)\n");
    EXPECT_EQ(journal.steps().size(), 7u);
    EXPECT_EQ(journal.steps()[5].call, "pane:down(it)");
}

TEST(UnseenParts, WhatChangedIsCoveredOnce) {
    sim::UnseenParts parts;
    parts.reset(200, 100);
    EXPECT_EQ(parts.take(), (std::vector<PictureArea>{{0, 0, 200, 96}, {0, 96, 200, 4}})) << "all at first";
    EXPECT_TRUE(parts.empty());
    parts.add({100, 10, 1, 1});
    parts.add({199, 99, 1, 1});
    parts.add({100, 20, 92, 1});
    parts.add({0, 0, 0, 5});
    EXPECT_EQ(parts.take(), (std::vector<PictureArea>{{96, 0, 96, 96}, {192, 96, 8, 4}}));
    EXPECT_TRUE(parts.take().empty());
}

TEST(UnseenParts, APageGetsRedGreenBlue) {
    render::Bitmap screen(2, 2);
    screen.pixels = {0xff010203, 0xff040506, 0xff070809, 0xff0a0b0c};
    std::string frame = sim::encodeFrame(screen, {{1, 0, 1, 2}}, 9);
    ASSERT_EQ(frame.size(), (4 + 4 + 2) * 4u);
    uint32_t words[10];
    std::memcpy(words, frame.data(), sizeof words);
    const uint32_t wanted[] = {9, 2, 2, 1, 1, 0, 1, 2, 0xff060504, 0xff0c0b0a};
    EXPECT_TRUE(std::equal(words, words + 10, wanted));
}

TEST(Packing, FollowsTheLineUnlessItIsSettled) {
    sim::Packing packing, never(false);
    EXPECT_TRUE(packing.packs()) << "until the line is known";
    uint32_t number = 0;
    double now = 0;
    // Frames of 500 KB, or a tenth of that, for so many seconds over a line of so many bytes a second;
    // another one waits for each. Gives how many of them were plain.
    auto use = [&](double speed, double delay, double duration) {
        int plain = 0;
        for (double end = now + duration; now < end;) {
            packing.sent(++number, now);
            never.sent(number, now);
            plain += !packing.packs();
            now += (packing.packs() ? 50e3 : 500e3) / speed + delay;
            packing.heldUp(now);
            never.heldUp(now);
            packing.seen(number, now);
            never.seen(number, now);
        }
        return plain;
    };
    use(100e6, 0, 3);
    EXPECT_FALSE(packing.packs()) << "a quick line";
    EXPECT_EQ(use(1.9e6, 0.1, 60), 1) << "a slow one";
    use(100e6, 0, 3);
    EXPECT_TRUE(packing.packs()) << "it may be no more than a lull";
    use(100e6, 0, 3);
    EXPECT_FALSE(packing.packs()) << "quick again";
    EXPECT_LT(use(1.9e6, 0, 300), 9) << "one that is not far, but narrow, is tried less and less";
    EXPECT_FALSE(never.packs());
}

TEST(LiveClock, FramesFollowRealTimeAndNeverRush) {
    sim::LiveClock clock;
    int64_t frames = 0;
    for (int i = 0; i < 600; ++i) frames += clock.pass(1.0 / 60);
    EXPECT_NEAR(static_cast<double>(frames), 600, 1);
    EXPECT_LE(clock.pass(5), 3) << "what a slow machine missed is not made up for";
    clock.setSpeed(0.1);
    frames = 0;
    for (int i = 0; i < 600; ++i) frames += clock.pass(1.0 / 60);
    EXPECT_NEAR(static_cast<double>(frames), 60, 1);
    clock.setSpeed(0);
    EXPECT_EQ(clock.pass(1), 0);
    clock.setSpeed(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(clock.speed(), 1);
}

TEST(LiveClock, FramesStandAtSixtiethsOfASecond) {
    EXPECT_EQ(sim::frameAfter(0, 1), 16'666'666);
    EXPECT_EQ(sim::frameAfter(16'666'666, 1), 33'333'333);
    EXPECT_EQ(sim::frameAfter(16'666'667, 1), 33'333'333);
    EXPECT_EQ(sim::frameAfter(40'000'000, 58), 1'000'000'000);
}

} // namespace
