// Values and their one-line form, in which the processes of a simulation talk.
#include "Runtime/Values/Json.hpp"

#include <gtest/gtest.h>

using sim::Array;
using sim::Object;
using sim::Value;
using sim::ValueError;

TEST(Json, KeepsEveryKindThatItHas) {
    Value value = Object{{"list", Array{1, -2.5, true, nullptr, "\"q\"\n\\ é"}},
                         {"large", int64_t{9007199254740993}},
                         {"nested", Object{{"", Object{}}, {"empty", Array{}}}}};
    std::string line = sim::toJson(value);
    EXPECT_EQ(line.find('\n'), std::string::npos);
    EXPECT_EQ(sim::parseJson(line), value);
    EXPECT_TRUE(sim::parseJson("1.0").isReal());
    EXPECT_TRUE(sim::parseJson("1").isInteger());
}

TEST(Json, RefusesWhatHasNoForm) {
    for (const char *text : {"", "{", "[1,]", "nul", "{\"a\":1} x", "'a'"})
        EXPECT_THROW(sim::parseJson(text), ValueError) << text;
    EXPECT_THROW(sim::toJson(sim::Data{"x"}), ValueError);
    EXPECT_THROW(sim::toJson(Array{sim::Date{0}}), ValueError);
    EXPECT_NO_THROW(sim::parseJson(sim::toJson("\xff\xfe broken text")));
}

TEST(Values, SayWhatWasWantedAndWhatWasThere) {
    try {
        (void)Value("text").integer();
        FAIL();
    } catch (const ValueError &error) {
        EXPECT_STREQ(error.what(), "expected integer, found string");
    }
    EXPECT_EQ(Value(3).number(), 3.0);
    EXPECT_THROW((void)Value(3.0).integer(), ValueError);
    EXPECT_TRUE(Value(1)["absent"].isNull());
    Value grown;
    grown.set("a", 1);
    grown.set("a", 2);
    EXPECT_EQ(grown, Value(Object{{"a", 2}}));
    EXPECT_FALSE(grown.has("b"));
}
