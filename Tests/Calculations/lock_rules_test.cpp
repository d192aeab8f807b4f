// The lock's decisions and the entry of its code: when it asks, on which face it opens, what a key and the
// delete button do, and that the shake comes back to where it began.
#include "Tweak/Lock/CodeEntry.hpp"
#include "Tweak/Lock/LockRules.hpp"
#include "Tweak/Lock/Shake.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace pendix;

TEST(LockRules, ArmsAsTheSettingSays) {
    struct {
        Where where;
        bool armed, passcodeLocked, expected;
    } const cases[] = {
        {Where::everyOpening, false, false, true}, {Where::everyOpening, true, false, true},
        {Where::everyOpening, false, true, true},  {Where::deviceLocked, false, false, false},
        {Where::deviceLocked, true, false, false}, {Where::deviceLocked, false, true, true},
        {Where::displayOff, false, false, false},  {Where::displayOff, false, true, false},
        {Where::displayOff, true, false, true},    {Where::displayOff, true, true, true},
    };
    for (const auto &c : cases)
        EXPECT_EQ(armedAtOpening(c.where, c.armed, c.passcodeLocked), c.expected)
            << static_cast<int>(c.where) << c.armed << c.passcodeLocked;
}

TEST(LockRules, ListensOnlyOnAFaceThatShows) {
    struct {
        bool sensor, touchid, ask;
        OpeningFace expected;
    } const cases[] = {
        {false, false, false, {false, false, false}}, {false, true, false, {false, false, false}},
        {false, true, true, {false, true, false}},    {true, false, false, {false, false, false}},
        {true, false, true, {false, true, false}},    {true, true, false, {true, false, true}},
        {true, true, true, {true, true, false}},
    };
    for (const auto &c : cases)
        EXPECT_EQ(openingFace(c.sensor, c.touchid, c.ask), c.expected) << c.sensor << c.touchid << c.ask;
}

TEST(CodeEntry, EveryDigitHasItsKey) {
    const int keys[] = {100, 10, 20, 30, 40, 50, 60, 70, 80, 90};
    for (int digit = 0; digit < 10; ++digit) {
        EXPECT_EQ(keyOfDigit(digit), keys[digit]);
        EXPECT_EQ(digitOfKey(keys[digit]), digit);
    }
}

// The states that entering and deleting can reach: n digits from the left, and four with one deleted while
// the comparison is pending.
TEST(CodeEntry, FillsFromTheLeftAndDeletesFromTheRight) {
    struct {
        FilledDots filled;
        std::optional<int> fill, clear;
    } const cases[] = {
        {{false, false, false, false}, 0, std::nullopt},
        {{true, false, false, false}, 1, 0},
        {{true, true, false, false}, 2, 1},
        {{true, true, true, false}, 3, 2},
        {{true, true, true, true}, std::nullopt, 2},
        {{true, true, false, true}, 2, 1},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(dotToFill(c.filled), c.fill);
        EXPECT_EQ(dotToClear(c.filled), c.clear);
    }
}

TEST(Shake, SwingsLessAndLessAndEndsWhereItBegan) {
    std::vector<int> moves;
    int sum = 0;
    for (std::optional<ShakeMove> move = ShakeMove{}; move && moves.size() < 100; move = nextMove(*move)) {
        moves.push_back(offset(*move));
        sum += moves.back();
    }
    EXPECT_EQ(moves, (std::vector{-50, 90, -70, 50, -30, 10}));
    EXPECT_EQ(sum, 0);
}

} // namespace
