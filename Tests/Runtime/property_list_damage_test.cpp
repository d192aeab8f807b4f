// Property lists that are cut off, altered or made to hurt: nothing comes back, or at least something well
// formed; the process neither crashes nor runs on, and memory stays bounded.
#include "PropertyListSamples.hpp"
#include "Runtime/Values/PropertyList.hpp"
#include "Runtime/Values/PropertyListReader.hpp"

#include <gtest/gtest.h>

using sim::parsePropertyList;
using sim::Value;

namespace {

constexpr const char *kOldStyle =
    "{ /* all of it */ a = \"q\\U00e9\\n\"; list = (1, (2, <0a 0b>), {}); // end\n 'single' = $x/y; }";

std::vector<std::string> corpus() {
    std::mt19937 generator(3);
    std::vector<std::string> texts = {kOldStyle};
    for (int i = 0; i < 4; ++i) {
        Value value = i ? sim::Object{{"v", samples::random(generator, 3)}} : samples::everyKind();
        texts.push_back(sim::toXmlPropertyList(value));
        texts.push_back(samples::binary(texts.back()));
    }
    return texts;
}

std::string nested(int depth, const std::string &open, const std::string &close) {
    std::string text;
    for (int i = 0; i < depth; ++i) text += open;
    for (int i = 0; i < depth; ++i) text += close;
    return text;
}

// A binary list of the objects given, with offsets and references of two bytes.
std::string binaryOf(const std::vector<std::string> &objects) {
    std::string bytes = "bplist00", table;
    auto number = [](uint64_t value, int size) {
        std::string result;
        for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
            result.push_back(static_cast<char>(value >> shift));
        return result;
    };
    for (const auto &object : objects) {
        table += number(bytes.size(), 2);
        bytes += object;
    }
    uint64_t offset = bytes.size();
    return bytes + table + std::string(6, '\0') + "\2\2" + number(objects.size(), 8) + number(0, 8) +
           number(offset, 8);
}

std::string reference(int index) { return {static_cast<char>(index >> 8), static_cast<char>(index)}; }

std::string refusal(const std::string &bytes) {
    std::string error;
    return parsePropertyList(bytes, &error) ? "read" : error;
}

} // namespace

TEST(DamagedPropertyLists, GiveNothingWhereverTheyAreCutOff) {
    for (const auto &whole : corpus()) {
        ASSERT_TRUE(parsePropertyList(whole, nullptr));
        // White space at the end is no loss.
        size_t length = whole.find_last_not_of('\n') + 1;
        if (whole.starts_with("bplist")) length = whole.size();
        for (size_t cut = 0; cut < length; ++cut) {
            auto read = parsePropertyList(std::string_view(whole).substr(0, cut), nullptr);
            // The first letters of a binary one are a word of text.
            ASSERT_FALSE(read && !read->isString()) << cut << " of " << whole;
        }
    }
}

TEST(DamagedPropertyLists, NeverCrashHoweverTheyAreAltered) {
    std::mt19937 generator(4);
    auto texts = corpus();
    int refused = 0;
    for (int round = 0; round < 20'000; ++round) {
        std::string bytes = texts[generator() % texts.size()];
        for (uint32_t change = 1 + generator() % 4; change > 0; --change) {
            size_t at = generator() % bytes.size();
            switch (generator() % 4) {
            case 0:
                bytes[at] = static_cast<char>(generator());
                break;
            case 1:
                bytes.erase(at, 1 + generator() % 8);
                break;
            case 2:
                bytes.insert(at, bytes.substr(generator() % bytes.size(), generator() % 16));
                break;
            default:
                bytes[at] ^= static_cast<char>(1 << generator() % 8);
            }
            if (bytes.empty()) bytes = "x";
        }
        std::string error;
        auto read = parsePropertyList(bytes, &error);
        ASSERT_NE(read.has_value(), !error.empty()) << bytes;
        refused += !read;
        // What was read is a proper value, though a null of the binary form cannot be written.
        if (read) try {
                ASSERT_TRUE(parsePropertyList(sim::toXmlPropertyList(*read), &error)) << error;
            } catch (const sim::ValueError &) {}
    }
    EXPECT_GT(refused, 1'000);
    EXPECT_LT(refused, 20'000);
}

TEST(DamagedPropertyLists, HaveABoundedDepth) {
    struct {
        std::string open, close;
    } const forms[] = {{"<array>", "</array>"}, {"<dict><key>k</key>", ""}, {"(", ")"}, {"{a=", ""}};
    for (const auto &[open, close] : forms) {
        if (!close.empty()) EXPECT_EQ(refusal(nested(128, open, close)), "read") << open;
        EXPECT_NE(refusal(nested(129, open, close)).find("nested too deeply"), std::string::npos) << open;
        EXPECT_NE(refusal(nested(500'000, open, close)).find("nested too deeply"), std::string::npos) << open;
    }
    std::vector<std::string> chain;
    for (int i = 0; i < 1000; ++i) chain.push_back("\xa1" + reference(i + 1));
    chain.push_back("\xa0");
    EXPECT_EQ(refusal(binaryOf(chain)), "binary: nested too deeply");
    EXPECT_EQ(refusal(binaryOf({chain.begin() + 873, chain.end()})).substr(0, 7), "binary:");
}

TEST(DamagedPropertyLists, DoNotUnfoldWithoutEnd) {
    EXPECT_EQ(refusal(binaryOf({"\xa1" + reference(0)})), "binary: nested too deeply");
    std::vector<std::string> doubling;
    for (int i = 0; i < 100; ++i) doubling.push_back("\xa2" + reference(i + 1) + reference(i + 1));
    doubling.push_back("\xa0");
    EXPECT_EQ(refusal(binaryOf(doubling)), "binary: unfolds to too much");
    std::string longText = std::string("\x5f\x12\x00\x00\x80\x00", 6) + std::string(0x8000, 'x');
    std::string many = std::string("\xaf\x11\x10\x00", 4);
    for (int i = 0; i < 0x1000; ++i) many += reference(1);
    EXPECT_EQ(refusal(binaryOf({many, longText})), "binary: unfolds to too much");
}

TEST(DamagedPropertyLists, OfTheBinaryFormAreCheckedObjectByObject) {
    using namespace std::string_literals;
    struct {
        std::vector<std::string> objects;
        std::string error;
    } const cases[] = {
        {{"\x09"}, "read"},
        {{"\x0f"}, "binary: an object of an unknown kind"},
        {{"\xc0"}, "binary: an object of an unknown kind"},
        {{"\x15"s + std::string(32, '\0')}, "binary: an integer of another size"},
        {{"\x21\1\1"s}, "binary: a real number of another size"},
        {{"\x32\1\1\1\1"s}, "binary: a date of another size"},
        {{"\x5f\x13\xff\xff\xff\xff\xff\xff\xff\xff"}, "binary: an object goes past the end"},
        {{"\x6f\x13\x80\0\0\0\0\0\0\1"s}, "binary: an object goes past the end"},
        {{"\xdf\x13\x80\0\0\0\0\0\0\1"s}, "binary: an object goes past the end"},
        {{"\xaf\x13\x7f\xff\xff\xff\xff\xff\xff\xff"}, "binary: an object goes past the end"},
        {{"\x5f\x22\0"s}, "binary: bad count"},
        {{"\x51\xe9"}, "binary: text that is not ASCII"},
        {{"\xa1\xff\xff"}, "binary: a reference to no object"},
        {{"\xd1" + reference(1) + reference(1), "\x09"}, "binary: a key that is no text"},
        {{"\x13\xff\xff\xff\xff\xff\xff\xff\xff"}, "read"},
        {{"\x14"s + std::string(16, '\1')}, "read"},
    };
    for (const auto &[objects, error] : cases) EXPECT_EQ(refusal(binaryOf(objects)), error) << objects[0];
}

TEST(DamagedPropertyLists, AreNotReadWhenTheyAreHuge) {
    std::string huge = "<array>" + std::string(sim::kLongestPropertyList - 15, ' ') + "</array>";
    ASSERT_EQ(huge.size(), sim::kLongestPropertyList);
    EXPECT_EQ(refusal(huge), "read");
    EXPECT_EQ(refusal(huge + " "), "longer than 16 MiB");
}
