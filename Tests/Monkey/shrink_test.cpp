// A list that shows a fault is made as short as it can be, and with no more replays than allowed.
#include "Tools/Monkey/Shrink.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using sim::Lines;

Lines numbered(size_t count) {
    Lines lines;
    for (size_t i = 0; i < count; ++i) lines.push_back(std::to_string(i));
    return lines;
}

// Shows the fault as soon as the wanted lines have come in this order.
std::optional<size_t> needs(const Lines &wanted, const Lines &lines) {
    size_t found = 0;
    for (size_t i = 0; i < lines.size() && found < wanted.size(); ++i)
        if (lines[i] == wanted[found] && ++found == wanted.size()) return i + 1;
    return wanted.empty() ? std::optional<size_t>(0) : std::nullopt;
}

TEST(Shrink, LeavesWhatTheFaultTakes) {
    struct Case {
        size_t count;
        Lines wanted;
    };
    const Case cases[] = {{1, {"0"}},
                          {2, {"1"}},
                          {1000, {"999"}},
                          {1000, {"0", "999"}},
                          {1000, {"3", "500", "501", "502"}},
                          {777, {"1", "2", "3", "4", "5", "6", "7"}},
                          {100, {}}};
    for (const auto &item : cases) {
        auto attempt = [&](const Lines &lines) { return needs(item.wanted, lines); };
        EXPECT_EQ(sim::shrunk(numbered(item.count), attempt, 10'000), item.wanted) << item.count;
    }
}

TEST(Shrink, DropsLinesThatOnlyGoTogether) {
    // A finger that goes up must have come down: neither line can go alone.
    auto attempt = [](const Lines &lines) -> std::optional<size_t> {
        bool down = std::ranges::count(lines, "10"), up = std::ranges::count(lines, "11");
        return down == up ? needs({"40"}, lines) : std::nullopt;
    };
    EXPECT_EQ(sim::shrunk(numbered(64), attempt, 10'000), Lines{"40"});
}

TEST(Shrink, StopsWhenItHasReplayedEnough) {
    for (size_t most : {size_t{0}, size_t{1}, size_t{5}, size_t{30}}) {
        size_t replays = 0;
        auto attempt = [&](const Lines &lines) {
            ++replays;
            return needs({"0", "350", "999"}, lines);
        };
        Lines left = sim::shrunk(numbered(1000), attempt, most);
        EXPECT_LE(replays, most);
        EXPECT_TRUE(needs({"0", "350", "999"}, left)) << "what is left still shows it";
    }
}

} // namespace
