#include "SettingsFiles.hpp"

#include "Runtime/PropertyListSamples.hpp"
#include "Runtime/Values/PropertyList.hpp"
#include "Tools/Monkey/SettingList.hpp"

#include <algorithm>
#include <random>

namespace faults {

namespace {

using sim::Object;
using sim::Value;
using Random = std::mt19937;

uint32_t below(Random &random, size_t count) { return static_cast<uint32_t>(random() % count); }

constexpr const char *kOldStyle =
    "{ enable = YES; glow = 1; tint = green; rech = 1; position = \"bottom\"; amount = 2; /* by hand */\n"
    "password = \"1234\"; where = every; pass = NO; \"com.apple.mobilemail\" = { hide_perapp = 1; }; odd = "
    "(1, <0a>); }";

// Right in form, with values that no reader expects.
Value oddValues(Random &random) {
    Object settings = wholeSettings();
    for (uint32_t change = 1 + below(random, 5); change > 0; --change) {
        auto at = std::next(settings.begin(), below(random, settings.size()));
        switch (below(random, 4)) {
        case 0:
            settings.erase(at);
            break;
        case 1:
            settings.insert_or_assign("key " + std::to_string(random()), samples::random(random, 2));
            break;
        default:
            at->second = samples::random(random, 3);
        }
        if (settings.empty()) settings = wholeSettings();
    }
    return settings;
}

std::string written(const Value &value, uint32_t form) {
    std::string xml = sim::toXmlPropertyList(value);
    if (form == 0) return samples::binary(xml);
    return form == 1 ? samples::otherXml(xml) : xml;
}

void changeByte(Random &random, std::string &bytes) {
    size_t at = below(random, bytes.size());
    switch (below(random, 4)) {
    case 0:
        bytes[at] = static_cast<char>(random());
        break;
    case 1:
        bytes.erase(at, 1 + below(random, 8));
        break;
    case 2:
        bytes.insert(at, bytes.substr(below(random, bytes.size()), below(random, 16)));
        break;
    default:
        bytes[at] ^= static_cast<char>(1 << below(random, 8));
    }
    if (bytes.empty()) bytes = "x";
}

// Words of the three forms put where another one stood.
void changeWord(Random &random, std::string &bytes) {
    static const char *const words[] = {
        "<true/>", "<false/>", "<string>", "</string>",   "<dict>",    "</dict>",
        "<array>", "</array>", "<key>",    "</key>",      "<integer>", "<real>",
        "<data>",  "<date>",   "<plist>",  "</plist>",    "enable",    "password",
        "1234",    "green",    "nan",      "-1",          "1e999",     "9223372036854775808",
        "&lt;",    "&#0;",     "&x;",      "<!--",        "-->",       "<!DOCTYPE",
        "{",       "}",        "(",        ")",           "=",         ";",
        "\"",      "\\U0000",  "\xff\xfe", "\xef\xbb\xbf"};
    const std::string from = words[below(random, std::size(words))],
                      to = words[below(random, std::size(words))];
    size_t at = bytes.find(from, below(random, bytes.size()));
    if (at == std::string::npos) {
        bytes.insert(below(random, bytes.size()), to);
    } else {
        bytes.replace(at, from.size(), to);
    }
}

} // namespace

Object wholeSettings() {
    using Kind = sim::Setting::Kind;
    Object settings{{"com.apple.mobilemail", Object{}}, {"org.example.1", Object{}}};
    bool on = true; // every other switch
    for (const sim::Setting &setting : sim::settingList()) {
        if (setting.kind == Kind::perApplication)
            for (const char *identifier : {"com.apple.mobilemail", "org.example.1"})
                settings[identifier].set(setting.key, on = !on);
        else if (setting.kind == Kind::toggle)
            settings.emplace(setting.key, on = !on);
        else
            settings.emplace(setting.key, setting.kind == Kind::color  ? "green"
                                          : setting.kind == Kind::code ? "1234"
                                                                       : setting.values[1]);
    }
    for (const char *name : {"enabled", "pulses"}) settings[sim::keyNamed(name)] = true;
    settings[sim::keyNamed("lockEnabled")] = false;
    return settings;
}

const std::vector<std::string> &settingNames() {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> list;
        for (const auto &[name, value] : wholeSettings())
            if (!value.isObject()) list.push_back(name);
        return list;
    }();
    return names;
}

std::string oddSettingsFile(uint64_t number) {
    std::seed_seq seed{static_cast<uint32_t>(number), static_cast<uint32_t>(number >> 32), 8u};
    Random random(seed);
    uint32_t form = below(random, 4);
    std::string bytes = form == 3 ? kOldStyle : written(oddValues(random), form);
    const uint32_t way = below(random, 100);
    if (way == 0) return "";
    if (way < 20) return bytes; // odd values only
    if (way < 30) bytes.resize(below(random, bytes.size()));
    for (uint32_t change = 1 + below(random, 4); change > 0 && !bytes.empty(); --change)
        below(random, 3) == 0 ? changeWord(random, bytes) : changeByte(random, bytes);
    return bytes;
}

} // namespace faults
