// However many events there are and wherever they lie, the list answers like one that has them all in memory.
#include "Runtime/Values/Sanitizer.hpp"
#include "Supervisor/Machine/EventList.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <unistd.h>

namespace sim {

namespace {

std::string words(size_t number) { return "event " + std::to_string(number) + std::string(number % 50, 'x'); }

// All kinds of values, now and then a rare kind of event, and more kinds than a word has bits.
Value event(size_t number) {
    Object fields{{"t", static_cast<double>(number) / 3}, {"kind", "log"}, {"text", words(number)}};
    if (number % 1000 == 999) fields["kind"] = "crash";
    if (number % 100 == 50) fields["kind"] = "kind " + std::to_string(number / 100);
    switch (number % 7) {
    case 0:
        fields["value"] = static_cast<int64_t>(number) - 3;
        break;
    case 1:
        fields["value"] = 2.0;
        break;
    case 2:
        fields["value"] = Array{true, nullptr, Object{{"", "\xff\n\0"}}, -0.0, HUGE_VAL};
        break;
    case 3:
        fields["value"] = Data{std::string("\0\1", 2)};
        break;
    case 4:
        fields["value"] = Date{0.1};
        break;
    default:
        break;
    }
    return fields;
}

struct Model {
    Array all;

    Array ofKind(const std::string &kind) const {
        Array result;
        for (const auto &event : all)
            if (event["kind"].string() == kind) result.push_back(event);
        return result;
    }
    Array since(size_t first) const {
        first = std::min(first, all.size());
        return {all.begin() + static_cast<std::ptrdiff_t>(first), all.end()};
    }
};

void compare(const EventList &list, const Model &model) {
    ASSERT_EQ(list.size(), model.all.size());
    EXPECT_TRUE(list.all() == model.all);
    for (const char *kind : {"log", "crash", "kind 0", "kind 70", "kind 99", "none"})
        EXPECT_TRUE(list.ofKind(kind) == model.ofKind(kind)) << kind;
    for (size_t first : {size_t{0}, size_t{1}, size_t{1023}, size_t{1024}, size_t{1025}, model.all.size() / 2,
                         model.all.size() - 1, model.all.size(), model.all.size() + 5})
        EXPECT_TRUE(list.since(first) == model.since(first)) << first;
    Array log;
    for (const auto &event : model.ofKind("log")) log.push_back(event["text"]);
    EXPECT_TRUE(list.log() == log);
    std::string tail = list.tail(2000);
    EXPECT_EQ(std::ranges::count(tail, '\n'), std::min<std::ptrdiff_t>(2000, std::ssize(model.all)));
    if (!model.all.empty()) EXPECT_NE(tail.find(words(model.all.size() - 1)), tail.npos);
}

#ifndef WATCHED_BY_SANITIZER // which keeps what is freed
size_t residentKilobytes() {
    std::ifstream status("/proc/self/statm");
    size_t whole = 0, resident = 0;
    status >> whole >> resident;
    return resident * static_cast<size_t>(sysconf(_SC_PAGESIZE)) / 1024;
}
#endif

} // namespace

TEST(EventList, AnswersTheSameWhereverItsEventsLie) {
    for (size_t size : {0, 1, 1023, 1024, 2047, 2048, 2049, 5000, 10000}) {
        SCOPED_TRACE(size);
        EventList list(nullptr);
        Model model;
        for (size_t i = 0; i < size; ++i) {
            list.add(event(i));
            model.all.push_back(event(i));
        }
        compare(list, model);
    }
}

#ifndef WATCHED_BY_SANITIZER
// A list in memory would take ten times as much and more.
TEST(EventList, TakesNoMoreMemoryForMoreEvents) {
    EventList list(nullptr);
    size_t before = 0;
    for (size_t i = 0; i < 200'000; ++i) {
        if (i == 10'000) before = residentKilobytes();
        list.add(event(i));
    }
    EXPECT_LT(residentKilobytes(), before + 4 * 1024);
    EXPECT_EQ(list.ofKind("crash").size(), 200u);
}
#endif

TEST(EventList, KeepsAllWhereThereIsNoFile) {
    setenv("TMPDIR", "/proc/self", 1); // a folder in which nothing can be made
    EventList list(nullptr);
    Model model;
    for (size_t i = 0; i < 5000; ++i) {
        list.add(event(i));
        model.all.push_back(event(i));
    }
    unsetenv("TMPDIR");
    compare(list, model);
}

} // namespace sim
