// A code is typed one digit at a time into a hidden field, and four dashes show it. A regression shows as a
// dot without a digit, or a letter in the code.
#include "PendixSettings/Passcode/DigitEntry.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

using pendix::pane::enterDigit;

// The field's text and the places as they look ("..--") after each change of the text: every character is
// typed, "<" deletes.
struct Code {
    std::u32string text;
    std::string places = "----";
    bool complete = false;

    void change(char32_t key) {
        if (key == U'<') {
            if (!text.empty()) text.pop_back();
        } else {
            text.push_back(key);
        }
        auto entry = enterDigit(text.size(), text.empty() ? 0 : text.back());
        text.resize(entry.kept);
        if (entry.dot) places.at(*entry.dot - 1) = '.';
        if (entry.dash) places.at(*entry.dash - 1) = '-';
        complete = entry.complete;
    }
};

TEST(DigitEntry, ShowsWhatWasTyped) {
    struct {
        const char32_t *keys, *text;
        const char *places;
        bool complete;
    } const cases[] = {
        {U"", U"", "----", false},         {U"1", U"1", ".---", false},
        {U"12a", U"12", "..--", false},    {U"a", U"", "----", false},
        {U"1/:2", U"12", "..--", false}, // the neighbours of 0 and 9
        {U"1٣2", U"12", "..--", false},  // a digit of another script
        {U"123<", U"12", "..--", false},   {U"12<<", U"", "----", false},
        {U"<1", U"1", ".---", false},      {U"12<34", U"134", "...-", false},
        {U"0990", U"0990", "....", true},  {U"123x4", U"1234", "....", true},
        {U"1234<", U"123", "...-", false},
    };
    for (const auto &c : cases) {
        Code code;
        for (const char32_t *key = c.keys; *key; ++key) code.change(*key);
        std::string keys(c.keys, c.keys + std::u32string_view(c.keys).size());
        EXPECT_EQ(code.text, c.text) << keys;
        EXPECT_EQ(code.places, c.places) << keys;
        EXPECT_EQ(code.complete, c.complete) << keys;
    }
}

// A code that is being compared is not compared again.
TEST(DigitEntry, IgnoresAFifthCharacter) {
    Code code;
    for (char32_t key : std::u32string(U"12345")) code.change(key);
    EXPECT_EQ(code.text, U"1234");
    EXPECT_EQ(code.places, "....");
    EXPECT_FALSE(code.complete);
}

} // namespace
