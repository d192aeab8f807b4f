#include "BootOptions.hpp"

#include "AidOptions.hpp"
#include "OptionTables.hpp"
#include "Runtime/Values/Json.hpp"
#include "Supervisor/Text/Suggest.hpp"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <set>

namespace sim {

namespace {

constexpr const char *kDefaultDevice = "iPhone 6";
constexpr const char *kDefaultVersion = "8.1";
constexpr const char *kDefaultLanguage = "en";
constexpr const char *kDefaultClock = "2015-03-01 10:20:30";

// By what they are called and by their model identifiers.
std::vector<std::string> deviceNames() {
    std::vector<std::string> names;
    for (const auto &profile : profiles()) names.insert(names.end(), {profile.name, profile.machine});
    return names;
}

// What is known of a version that another device ran is that this one did not; of others nothing.
std::string refusal(const Profile &profile, const std::string &version) {
    bool known = std::ranges::any_of(profiles(), [&](const auto &other) { return other.ran(version); });
    return known ? std::string("no ") + profile.name + " ever ran iOS " + version +
                       "; it is simulated with " + versionList(profile)
                 : "iOS " + version + " is not simulated; the " + profile.name + " is with " +
                       versionList(profile);
}

void readProfile(OptionReader &reader, BootOptions &options) {
    std::string name = reader.string("device").value_or(kDefaultDevice);
    options.version = reader.string("ios").value_or(kDefaultVersion);
    options.profile = findProfile(name);
    if (!options.profile) reader.fail("there is no device '" + name + "'" + suggestion(name, deviceNames()));
    if (!options.profile->ran(options.version)) reader.fail(refusal(*options.profile, options.version));
}

void readClock(OptionReader &reader, BootOptions &options) {
    std::string text = reader.string("clock").value_or(kDefaultClock);
    auto time = parseClock(text);
    if (!time)
        reader.fail("'clock' must look like \"" + std::string(kDefaultClock) + "\", not \"" + text + "\"");
    options.wallClock = *time;
}

void readSettings(OptionReader &reader, BootOptions &options) {
    if (auto settings = reader.table("settings")) options.settings = std::move(*settings);
    options.settingsText = reader.string("settings_text");
    if (options.settings && options.settingsText) reader.fail("give 'settings' or 'settings_text', not both");
}

// Also says when the stock applications have no names in the language.
std::vector<ApplicationSpec> readStock(std::string_view json, const std::string &language,
                                       std::vector<std::string> &remarks) {
    std::vector<ApplicationSpec> result;
    std::set<std::string> languages;
    Value list = parseJson(json);
    for (const auto &entry : list.array()) {
        ApplicationSpec application;
        application.identifier = entry["id"].string();
        const Value &names = entry["name"];
        for (const auto &name : names.object()) languages.insert(name.first);
        application.name = names[names.has(language) ? language : kDefaultLanguage].string();
        if (entry.has("folder")) application.folder = entry["folder"].string();
        application.dock = entry.has("dock") && entry["dock"].boolean();
        application.statusBar = !entry.has("status_bar") || entry["status_bar"].boolean();
        result.push_back(std::move(application));
    }
    std::vector<std::string> known(languages.begin(), languages.end());
    if (!languages.contains(language))
        remarks.push_back(
            "the system has no texts in '" + language + "' and shows English ones" +
            (nearest(language, known).empty() ? "; it has " + listed(known) : suggestion(language, known)));
    return result;
}

// The stock application's name; else the last part of the identifier.
std::string nameOf(const std::string &identifier, const std::vector<ApplicationSpec> &stock) {
    auto found = std::ranges::find(stock, identifier, &ApplicationSpec::identifier);
    return found != stock.end() ? found->name : identifier.substr(identifier.rfind('.') + 1);
}

ApplicationSpec readApplication(const Value &table, const std::string &where,
                                const std::vector<ApplicationSpec> &stock) {
    OptionReader reader(table, where, applicationOptionTable().options);
    ApplicationSpec application;
    eachField(application, reader);
    reader.finish();
    if (application.identifier.empty()) reader.fail("an application needs an 'id'");
    if (application.badge < 0) reader.fail("'badge' must not be negative");
    if (application.name.empty()) application.name = nameOf(application.identifier, stock);
    return application;
}

void readApplications(OptionReader &reader, BootOptions &options, std::string_view stockApplications) {
    auto stock = readStock(stockApplications, options.language, options.remarks);
    auto list = reader.list("apps");
    if (!list) {
        options.applications = std::move(stock);
        return;
    }
    std::set<std::string> seen;
    for (size_t i = 0; i < list->size(); ++i) {
        std::string where = "boot: apps[" + std::to_string(i + 1) + "]";
        options.applications.push_back(readApplication((*list)[i], where, stock));
        if (!seen.insert(options.applications.back().identifier).second)
            throw BootError(where + ": '" + options.applications.back().identifier + "' is listed twice");
    }
}

void readColorBadges(OptionReader &reader, BootOptions &options) {
    const Value &value = reader.any("color_badges");
    if (value.isNull() || (value.isBool() && !value.boolean())) return;
    OptionReader badges(value.isBool() ? Value() : value, "boot: color_badges",
                        colorBadgeOptionTable().options);
    eachField(options.colorBadges.emplace(), badges);
    badges.finish();
}

FailingWrites readFailingWrites(const Value &table, const std::string &where) {
    OptionReader reader(table, where, failingWriteOptionTable().options);
    FailingWrites failure;
    eachField(failure, reader);
    reader.finish();
    if (!failure.path.starts_with("/")) reader.fail("'path' must be an absolute path of the device");
    if (!errorNumber(failure.error))
        reader.fail("'error' must be \"EACCES\", \"EIO\", \"ENOSPC\" or \"EROFS\"");
    if (!failure.call.empty() && failure.call != "open" && failure.call != "rename")
        reader.fail("'call' must be \"open\" or \"rename\"");
    if (failure.first < 1 || failure.times.value_or(1) < 1) reader.fail("'first' and 'times' count from 1");
    return failure;
}

void readFaults(OptionReader &reader, BootOptions &options) {
    reader("missing_files", options.missingFiles);
    for (const auto &path : options.missingFiles)
        if (!path.starts_with("/"))
            reader.fail("'missing_files' holds absolute paths of the device, not '" + path + "'");
    Array failures = reader.list("fail_writes").value_or(Array{});
    for (size_t i = 0; i < failures.size(); ++i)
        options.writeFailures.push_back(
            readFailingWrites(failures[i], "boot: fail_writes[" + std::to_string(i + 1) + "]"));
}

} // namespace

std::optional<double> parseClock(const std::string &text) {
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0, length = 0;
    int found = sscanf(text.c_str(), "%4d-%2d-%2d %2d:%2d:%2d%n", &year, &month, &day, &hour, &minute,
                       &second, &length);
    if (found != 6 || static_cast<size_t>(length) != text.size()) return std::nullopt;
    std::chrono::year_month_day date{std::chrono::year(year),
                                     std::chrono::month(static_cast<unsigned>(month)),
                                     std::chrono::day(static_cast<unsigned>(day))};
    auto within = [](int value, int end) { return value >= 0 && value < end; };
    if (!date.ok() || !within(hour, 24) || !within(minute, 60) || !within(second, 60)) return std::nullopt;
    auto days = std::chrono::sys_days(date).time_since_epoch().count();
    return days * 86400.0 + hour * 3600 + minute * 60 + second;
}

BootOptions readBootOptions(const Value &table, std::string_view stockApplications) {
    OptionReader reader(table, "boot", bootOptionTable().options);
    BootOptions options;
    readProfile(reader, options);
    options.language = reader.string("language").value_or(kDefaultLanguage);
    readClock(reader, options);
    readSettings(reader, options);
    readApplications(reader, options, stockApplications);
    eachField(options, reader);
    checkAids(reader, options.aids);
    readFaults(reader, options);
    readColorBadges(reader, options);
    options.passcode = options.passcode || options.passcodeLocked;
    reader("apex", options.otherExtension);
    reader("root", options.root);
    reader("extensions", options.extensions);
    reader.finish();
    return options;
}

} // namespace sim
