// The clock: what is due runs at its time and in the documented order, frames stand on their grid, nothing
// drifts.
#include "Runtime/Time/Clock.hpp"

#include <gmock/gmock.h>

#include <string>

using sim::Clock;
using sim::kSecond;
using sim::Nanos;
using testing::ElementsAre;
using Phase = Clock::Phase;

namespace {

class ClockTest : public testing::Test {
protected:
    Clock::Task note(const std::string &name) {
        return [this, name] { log.push_back(name); };
    }
    Clock clock;
    std::vector<std::string> log;
};

} // namespace

TEST_F(ClockTest, RunsByTimeThenPhaseThenOrderOfScheduling) {
    clock.schedule(2, Phase::touch, note("late touch"));
    clock.schedule(1, Phase::animation, note("animation"));
    clock.schedule(1, Phase::timer, note("timer 1"));
    clock.schedule(1, Phase::touch, note("touch"));
    clock.schedule(1, Phase::timer, note("timer 2"));
    clock.onCommit(note("commit"));
    clock.advance(1);
    EXPECT_THAT(log, ElementsAre("touch", "timer 1", "timer 2", "animation", "commit"));
    EXPECT_EQ(clock.next(), 2);
    clock.advance(10);
    EXPECT_EQ(log.size(), 7u);
    EXPECT_EQ(clock.now(), 10);
}

TEST_F(ClockTest, ShowsEachTaskItsOwnTime) {
    std::vector<Nanos> times;
    for (Nanos due : {30, 10, 20, 20})
        clock.schedule(due, Phase::timer, [&] { times.push_back(clock.now()); });
    clock.advance(25);
    EXPECT_THAT(times, ElementsAre(10, 20, 20));
}

TEST_F(ClockTest, RunsWhatATaskSchedulesForNowInTheSameInstant) {
    clock.schedule(5, Phase::timer, [this] {
        clock.schedule(1, Phase::timer, note("overdue"));
        clock.schedule(5, Phase::animation, note("animation"));
        clock.schedule(6, Phase::timer, note("later"));
        log.push_back("first");
    });
    clock.schedule(5, Phase::animation, [this] { clock.schedule(5, Phase::touch, note("touch")); });
    clock.advance(5);
    EXPECT_THAT(log, ElementsAre("first", "overdue", "touch", "animation"));
}

TEST_F(ClockTest, ForgetsCancelledTasksEvenInTheirOwnInstant) {
    auto doomed = clock.schedule(3, Phase::animation, note("doomed"));
    auto before = clock.schedule(2, Phase::timer, note("before"));
    clock.schedule(3, Phase::timer, [&] { clock.cancel(doomed); });
    clock.cancel(before);
    clock.cancel(before);
    clock.cancel(12345);
    clock.advance(5);
    EXPECT_TRUE(log.empty());
    EXPECT_EQ(clock.next(), std::nullopt);
}

TEST_F(ClockTest, VisitsEachFrameOnItsGridWhileSomebodyWaits) {
    clock.advance(kSecond / 2 + 1);
    std::vector<Nanos> frames;
    auto link = clock.everyFrame([&] { frames.push_back(clock.now()); });
    EXPECT_EQ(clock.next(), sim::frameTime(31));
    clock.advance(kSecond * 3 / 2);
    ASSERT_EQ(frames.size(), 60u);
    for (int i = 0; i < 60; ++i) EXPECT_EQ(frames[static_cast<size_t>(i)], sim::frameTime(31 + i));
    clock.cancel(link);
    EXPECT_EQ(clock.next(), std::nullopt);
    clock.advance(10 * kSecond);
    EXPECT_EQ(frames.size(), 60u);
}

TEST_F(ClockTest, RunsDisplayLinksBetweenTimersAndAnimations) {
    Clock::TaskId link = clock.everyFrame([&] {
        log.push_back("link");
        clock.cancel(link);
    });
    clock.schedule(sim::frameTime(1), Phase::animation, note("animation"));
    clock.schedule(sim::frameTime(1), Phase::timer, note("timer"));
    clock.advance(kSecond);
    EXPECT_THAT(log, ElementsAre("timer", "link", "animation"));
}

TEST_F(ClockTest, CommitsOnceAnInstantAndWhenAsked) {
    int commits = 0;
    clock.onCommit([&] { ++commits; });
    for (Nanos due : {1, 1, 2}) clock.schedule(due, Phase::timer, [] {});
    clock.advance(3);
    EXPECT_EQ(commits, 2);
    clock.settleNow();
    EXPECT_EQ(commits, 3);
}

TEST_F(ClockTest, HandsEveryTaskToTheGuard) {
    clock.setGuard([this](const Clock::Task &task) {
        log.push_back("(");
        task();
        log.push_back(")");
    });
    clock.schedule(1, Phase::timer, note("timer"));
    clock.advance(1);
    EXPECT_THAT(log, ElementsAre("(", "timer", ")"));
}

TEST(ClockTimes, RoundToNanosecondsAndFramesToTheirGrid) {
    EXPECT_EQ(sim::fromSeconds(0.1) * 10, kSecond);
    EXPECT_EQ(sim::fromSeconds(1.0 / 3), 333'333'333);
    EXPECT_EQ(sim::toSeconds(1'500'000'000), 1.5);
    EXPECT_EQ(sim::frameTime(60), kSecond);
    EXPECT_EQ(sim::frameTime(3), kSecond / 20);
    for (int64_t k = 0; k < 200; ++k) {
        EXPECT_EQ(sim::nextFrame(sim::frameTime(k)), sim::frameTime(k + 1));
        EXPECT_EQ(sim::nextFrame(sim::frameTime(k + 1) - 1), sim::frameTime(k + 1));
    }
}
