// What a failed comparison tells its reader: the place, what is there, and what was wanted.
#include "Supervisor/Text/Readable.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace {

using sim::Array;
using sim::Object;
using sim::Value;

TEST(Readable, LooksAsAScriptWouldWriteIt) {
    struct {
        Value value;
        const char *text;
    } const cases[] = {
        {{}, "nil"},
        {true, "true"},
        {3, "3"},
        {0.1, "0.1"},
        {std::numeric_limits<double>::infinity(), "math.huge"},
        {"a \"b\"\n", "\"a \\\"b\\\"\\n\""},
        {Array{1, Array{}, Object{}}, "{1, {}, {}}"},
        {Object{{"b", 1}, {"a c", 2}, {"[3]", 4}}, "{[3] = 4, [\"a c\"] = 2, b = 1}"},
    };
    for (const auto &test : cases) EXPECT_EQ(sim::readable(test.value), test.text);
}

TEST(Readable, NamesTheFirstDifference) {
    struct {
        Value actual, wanted;
        const char *difference; // null: equal
    } const cases[] = {
        {1, 1.0, nullptr},
        {Array{}, Object{}, nullptr},
        {Object{{"a", Array{1, 2}}}, Object{{"a", Array{1.0, 2}}}, nullptr},
        {1, "1", "1, wanted \"1\""},
        {false, {}, "false, wanted nil"},
        {Array{1, 2, 3}, Array{1, 5, 6}, "at [2]: 2, wanted 5"},
        {Array{1}, Array{1, 2}, "at [2]: nil, wanted 2"},
        {Array{1, 2}, Array{1}, "at [2]: 2, wanted nil"},
        {Object{{"s", Object{{"x", 1}}}}, Object{{"s", Object{{"x", 2}}}}, "at .s.x: 1, wanted 2"},
        {Object{{"a b", 1}}, Object{{"a b", 2}}, "at [\"a b\"]: 1, wanted 2"},
        {Object{}, Object{{"k", true}}, "at .k: nil, wanted true"},
        {Array{1}, Object{{"k", 1}}, "{1}, wanted {k = 1}"},
    };
    for (const auto &test : cases) {
        auto found = sim::firstDifference(test.actual, test.wanted);
        EXPECT_EQ(found.value_or(""), test.difference ? test.difference : "") << sim::readable(test.actual);
    }
}

} // namespace
