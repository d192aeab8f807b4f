#include "SettingValues.hpp"

#include "Runtime/Values/PropertyList.hpp"

#include <algorithm>

namespace sim {

namespace {

constexpr const char *kEnable = "enable", *kCode = "password";

const std::vector<std::string> &switches() {
    static const std::vector<std::string> keys = {
        "badge", "hide", "hide_t", "glow",  "newb",   "auto",    "b",   "light", "back", "fast",
        "blur",  "ca",   "rech",   "close", "paging", "touchid", "ask", "clear", "pass", kEnable};
    return keys;
}

const std::vector<std::string> &choices() {
    static const std::vector<std::string> keys = {"tint", "colors", "position", "amount", "where", kCode};
    return keys;
}

const std::vector<std::string> kColors = {"black",   "white",  "gray",   "red",   "green", "blue",  "cyan",
                                          "magenta", "orange", "purple", "brown", "clear", "yellow"};

Value choice(Random &random, const std::string &key) {
    if (key == "tint" || key == "colors") return random.pick(kColors);
    if (key == "position") return random.pick({"top", "middle", "bottom"});
    if (key == "amount") return std::to_string(random.between(1, 5));
    if (key == "where") return random.pick({"everyoff", "every", "lockscreen"});
    return random.pick(codes());
}

bool isSwitch(const std::string &key) { return std::ranges::count(switches(), key) > 0; }
bool isChoice(const std::string &key) { return std::ranges::count(choices(), key) > 0; }

std::string noise(Random &random, size_t length) {
    std::string result;
    while (result.size() < length) result += static_cast<char>(random.below(128));
    return result;
}

} // namespace

const std::vector<std::string> &codes() {
    static const std::vector<std::string> list = {"1234", "0000", "1379"};
    return list;
}

std::string anyKey(Random &random, const std::vector<std::string> &applications) {
    if (random.percent(12)) return random.pick(applications);
    if (random.percent(3)) return random.pick({"hasTouchID", "", "no such key", "enable ", "perapp"});
    return random.percent(70) ? random.pick(switches()) : random.pick(choices());
}

Value legalValue(Random &random, const std::string &key) {
    if (key == kEnable) return random.percent(85);
    // Mostly off: a lock or a hidden indicator keeps everything else from being reached.
    if (key == "hide" || key == "pass") return random.percent(25);
    if (isSwitch(key)) return random.percent(50);
    if (isChoice(key)) return choice(random, key);
    if (key == "hasTouchID") return random.pick({"0", "1"});
    return Object{{"hide_perapp", random.percent(50)}, {"badge_perapp", random.percent(50)}};
}

Value illegalValue(Random &random) {
    switch (random.below(14)) {
    case 0:
        return random.percent(50);
    case 1:
        return random.pick<int64_t>({0, 1, -1, 2, 99, INT64_MAX, INT64_MIN, 1LL << 32});
    case 2:
        return random.pick({0.5, -0.0, 1e300, -1e18, 3.0, 1e-300});
    case 3:
        return "";
    case 4:
        return random.pick({"yes", "NO", "0", "-1", "1e9", "99999999999999999999", " ", "Red", "top "});
    case 5:
        return std::string(random.below(5000), 'x');
    case 6:
        return "\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80 %@ %n %s";
    case 7:
        return Array{Value(1), Value("two")};
    case 8:
        return Array{Array{}, Object{{"a", 1}}};
    case 9:
        return Object{{"a", 1}};
    case 10:
        return Object{{"hide_perapp", Object{{"a", 1}}}, {"badge_perapp", Array{Value(1)}}};
    case 11:
        return Object{{"hide_perapp", "yes"}, {"badge_perapp", 2.5}};
    case 12:
        return random.pick({"12", "12345", "abcd", "12 4", "1234"});
    default:
        return Value();
    }
}

Object legalSettings(Random &random, const std::vector<std::string> &applications) {
    Object result{{kEnable, random.percent(95)}};
    for (uint64_t i = random.below(14); i > 0; --i) {
        std::string key = anyKey(random, applications);
        if (key != kEnable) result.insert_or_assign(key, legalValue(random, key));
    }
    if (random.percent(25)) {
        result.insert_or_assign("pass", true);
        result.insert_or_assign(kCode, random.pick(codes()));
        result.insert_or_assign("where", choice(random, "where"));
        if (random.percent(50)) result.insert_or_assign("touchid", true);
    }
    return result;
}

std::string brokenFile(Random &random) {
    std::string whole = toXmlPropertyList(Object{{kEnable, true}, {"amount", "3"}, {"pass", false}});
    switch (random.below(7)) {
    case 0:
        return "";
    case 1:
        return whole.substr(0, random.below(whole.size()));
    case 2:
        return "{ enable = ";
    case 3:
        return "bplist00" + noise(random, random.below(60));
    case 4:
        return toXmlPropertyList(Array{Value(1), Value(2)});
    case 5: {
        for (uint64_t i = random.between(1, 6); i > 0; --i)
            whole[random.below(whole.size())] = static_cast<char>(random.below(128));
        return whole;
    }
    default:
        return noise(random, random.below(300));
    }
}

} // namespace sim
