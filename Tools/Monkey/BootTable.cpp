#include "BootTable.hpp"

#include "SettingValues.hpp"
#include "Supervisor/Boot/OptionReader.hpp"
#include "Supervisor/Profiles/Profiles.hpp"

#include <algorithm>

namespace sim {

namespace {

const std::vector<std::string> kStock = {
    "com.apple.mobilemail", "com.apple.mobilephone", "com.apple.MobileSMS",   "com.apple.mobiletimer",
    "com.apple.mobilecal",  "com.apple.Preferences", "com.apple.facetime",    "com.apple.gamecenter",
    "com.apple.camera",     "com.apple.weather",     "com.apple.mobilesafari"};

void chooseDevice(Random &random, Value &table) {
    std::vector<std::pair<std::string, std::string>> pairs;
    for (const auto &profile : profiles())
        for (const char *version : profile.versions)
            if ((!table.has("device") || table["device"] == Value(profile.name)) &&
                (!table.has("ios") || table["ios"] == Value(version)))
                pairs.emplace_back(profile.name, version);
    if (pairs.empty()) throw BootError("there is no such device with that version");
    const auto &[device, version] = random.pick(pairs);
    table.set("device", device);
    table.set("ios", version);
}

Value application(Random &random, std::string identifier) {
    Value result = Object{{"id", std::move(identifier)}};
    if (random.percent(50)) result.set("badge", random.pick<int64_t>({1, 2, 9, 99, 999, 1000, 123456}));
    if (random.percent(50)) result.set("running", true);
    if (random.percent(10)) result.set("folder", random.pick({"Box", "Social"}));
    if (random.percent(10)) result.set("icon", false);
    if (random.percent(20)) result.set("snapshot", false);
    if (random.percent(10))
        result.set("name",
                   random.pick({"A", "A name that is far too long for its icon", "\xc3\x89t\xc3\xa9"}));
    return result;
}

Value applications(Random &random) {
    Array result;
    for (uint64_t i = random.below(4); i > 0; --i)
        result.push_back(application(random, "org.example.first" + std::to_string(i)));
    for (const auto &identifier : kStock)
        if (random.percent(60)) result.push_back(application(random, identifier));
    if (random.percent(10))
        for (uint64_t i = random.below(40); i > 0; --i)
            result.push_back(application(random, "org.example.more" + std::to_string(i)));
    return result;
}

void chooseSettings(Random &random, Value &table) {
    bool keptRoot = table.has("root");
    if (table.has("settings") || table.has("settings_text")) return;
    if (!keptRoot && random.percent(5)) return;
    if (!keptRoot && random.percent(3)) return table.set("settings_text", std::string("{ enable = "));
    Object settings = legalSettings(random, applicationsOf(table));
    if (random.percent(10)) {
        Value wrong = illegalValue(random);
        if (!wrong.isNull()) settings.insert_or_assign(anyKey(random, applicationsOf(table)), wrong);
    }
    table.set("settings", settings);
}

} // namespace

Value bootTable(Random &random, const Value &given) {
    Value table = given.isNull() ? Value(Object{}) : given;
    auto choose = [&](unsigned percent, const char *name, const Value &value) {
        // Drawn in any case, so that what is given changes nothing else.
        if (random.percent(percent) && !table.has(name)) table.set(name, value);
    };
    chooseDevice(random, table);
    choose(40, "language", random.pick({"en", "it", "es"}));
    choose(40, "clock", random.pick({"2015-03-01 23:59:50", "2015-12-31 12:00:00", "2016-02-29 00:00:01"}));
    choose(60, "apps", applications(random));
    choose(30, "passcode", true);
    choose(8, "passcode_locked", true);
    choose(10, "apex", true);
    choose(15, "color_badges", Object{{"enabled", random.percent(70)}, {"borders", random.percent(50)}});
    chooseSettings(random, table);
    return table;
}

std::vector<std::string> applicationsOf(const Value &table) {
    if (!table.has("apps") || !table["apps"].isArray() || table["apps"].array().empty()) return kStock;
    std::vector<std::string> result;
    for (const auto &application : table["apps"].array()) result.push_back(application["id"].string());
    return result;
}

} // namespace sim
