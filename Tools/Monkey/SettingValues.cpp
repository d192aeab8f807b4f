#include "SettingValues.hpp"

#include "Runtime/Values/PropertyList.hpp"
#include "SettingList.hpp"

#include <algorithm>

namespace sim {

namespace {

using Kind = Setting::Kind;

const std::string &enabled() { return keyNamed("enabled"); }

// What `set` finds in the file's own dictionary: the switches, and what has more than two values.
std::vector<std::string> keysOf(bool switches) {
    std::vector<std::string> keys;
    for (const Setting &setting : settingList())
        if (setting.kind != Kind::record && setting.kind != Kind::perApplication &&
            (setting.kind == Kind::toggle) == switches)
            keys.push_back(setting.key);
    return keys;
}

const std::vector<std::string> kColors = {"black",   "white",  "gray",   "red",   "green", "blue",  "cyan",
                                          "magenta", "orange", "purple", "brown", "clear", "yellow"};

// Mostly off: a lock or a hidden indicator keeps everything else from being reached.
unsigned percentOn(const std::string &key) {
    if (key == enabled()) return 85;
    return key == keyNamed("hidesIndicator") || key == keyNamed("lockEnabled") ? 25 : 50;
}

Value valueFor(Random &random, const Setting &setting) {
    switch (setting.kind) {
    case Kind::toggle:
    case Kind::perApplication:
        return random.percent(percentOn(setting.key));
    case Kind::color:
        return random.pick(kColors);
    case Kind::code:
        return random.pick(codes());
    case Kind::choice:
    case Kind::record:
        break;
    }
    return random.pick(setting.values);
}

Value applicationValues(Random &random) {
    Object result;
    for (const Setting &setting : settingList())
        if (setting.kind == Kind::perApplication)
            result.insert_or_assign(setting.key, valueFor(random, setting));
    return result;
}

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
    static const std::vector<std::string> switches = keysOf(true), others = keysOf(false);
    if (random.percent(12)) return random.pick(applications);
    if (random.percent(3))
        return random.pick<std::string>(
            {keyNamed("hasSensor"), "", "no such key", enabled() + " ", "perapp"});
    return random.percent(70) ? random.pick(switches) : random.pick(others);
}

Value legalValue(Random &random, const std::string &key) {
    const Setting *setting = settingOfKey(key);
    return setting ? valueFor(random, *setting) : applicationValues(random);
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
        return Object{{keyNamed("appHidden"), Object{{"a", 1}}},
                      {keyNamed("appWithoutMark"), Array{Value(1)}}};
    case 11:
        return Object{{keyNamed("appHidden"), "yes"}, {keyNamed("appWithoutMark"), 2.5}};
    case 12:
        return random.pick({"12", "12345", "abcd", "12 4", "1234"});
    default:
        return Value();
    }
}

Object legalSettings(Random &random, const std::vector<std::string> &applications) {
    Object result{{enabled(), random.percent(95)}};
    for (uint64_t i = random.below(14); i > 0; --i) {
        std::string key = anyKey(random, applications);
        if (key != enabled()) result.insert_or_assign(key, legalValue(random, key));
    }
    if (random.percent(25)) {
        result.insert_or_assign(keyNamed("lockEnabled"), true);
        result.insert_or_assign(keyNamed("passcode"), random.pick(codes()));
        const std::string &where = keyNamed("lockMoment");
        result.insert_or_assign(where, legalValue(random, where));
        if (random.percent(50)) result.insert_or_assign(keyNamed("unlocksByFinger"), true);
    }
    return result;
}

std::string brokenFile(Random &random) {
    std::string whole = toXmlPropertyList(
        Object{{enabled(), true}, {keyNamed("rows"), "3"}, {keyNamed("lockEnabled"), false}});
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
