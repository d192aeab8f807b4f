#include "PropertyListSamples.hpp"

#include <plist/plist.h>

#include <cmath>
#include <cstdlib>
#include <iterator>
#include <stdexcept>

namespace samples {

using sim::Array;
using sim::Data;
using sim::Date;
using sim::Object;
using sim::Value;

namespace {

constexpr const char *kTexts[] = {"",          "plain",        "<&>\"' ]]>", "tab\tline\nend",
                                  "déjà vu",   "\u4f60\u597d", "\U0001f512", " spaces ",
                                  "a.b-c_d/e", "0x10"};

template <typename Write>
std::string rewrite(const std::string &xml, Write write) {
    plist_t tree = nullptr;
    plist_from_xml(xml.data(), static_cast<uint32_t>(xml.size()), &tree);
    if (!tree) throw std::runtime_error("the other reader refuses " + xml);
    char *bytes = nullptr;
    uint32_t length = 0;
    write(tree, &bytes, &length);
    std::string result(bytes, length);
    free(bytes);
    plist_free(tree);
    return result;
}

} // namespace

Value everyKind() {
    return Object{{"array", Array{1, "two", 3.5, Array{}, Object{}}},
                  {"data", Data{std::string("\0\1\2\xff", 4)}},
                  {"date", Date{446898030}},
                  {"false", false},
                  {"integer", -12345678901},
                  {"nested", Object{{"a", Object{{"b", Array{true}}}}}},
                  {"real", 0.1},
                  {"string", "<déjà> & \U0001f512"},
                  {"true", true}};
}

Value random(std::mt19937 &generator, int depth) {
    auto pick = [&](uint32_t count) { return generator() % count; };
    switch (pick(depth > 0 ? 10 : 7)) {
    case 0:
        return pick(2) == 0;
    case 1:
        return static_cast<int64_t>(generator()) << pick(32);
    case 2:
        return -static_cast<int64_t>(pick(1000));
    case 3:
        return std::ldexp(static_cast<double>(generator()), static_cast<int>(pick(200)) - 100);
    case 4:
        return std::string(kTexts[pick(std::size(kTexts))]) + std::to_string(pick(100));
    case 5:
        return Data{std::string(pick(100), static_cast<char>(pick(256)))};
    case 6:
        return Date{static_cast<double>(generator()) - 2e9};
    case 7: {
        Array items;
        for (uint32_t i = pick(20); i > 0; --i) items.push_back(random(generator, depth - 1));
        return items;
    }
    default: {
        Object members;
        for (uint32_t i = pick(20); i > 0; --i)
            members.insert_or_assign(kTexts[pick(std::size(kTexts))] + std::to_string(i),
                                     random(generator, depth - 1));
        return members;
    }
    }
}

std::string binary(const std::string &xml) { return rewrite(xml, plist_to_bin); }
std::string otherXml(const std::string &xml) { return rewrite(xml, plist_to_xml); }

} // namespace samples
