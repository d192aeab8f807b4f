#include "BootOptions.hpp"

#include "Runtime/Values/Json.hpp"
#include "Supervisor/Text/Suggest.hpp"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <map>
#include <set>

namespace sim {

namespace {

constexpr const char *kDefaultDevice = "iPhone 6";
constexpr const char *kDefaultVersion = "8.1";
constexpr const char *kDefaultLanguage = "en";
constexpr const char *kDefaultClock = "2015-03-01 10:20:30";

void readProfile(OptionReader &reader, BootOptions &options) {
    std::string name = reader.string("device").value_or(kDefaultDevice);
    options.version = reader.string("ios").value_or(kDefaultVersion);
    options.profile = findProfile(name);
    std::vector<std::string> names;
    for (const auto &profile : profiles()) names.emplace_back(profile.name);
    if (!options.profile) reader.fail("there is no device '" + name + "'" + suggestion(name, names));
    if (!options.profile->ran(options.version))
        reader.fail("there never was an " + name + " with iOS " + options.version +
                    " (it is simulated with " + versionList(*options.profile) + ")");
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

std::vector<Application> readStock(std::string_view json, const std::string &language) {
    std::vector<Application> result;
    Value list = parseJson(json);
    for (const auto &entry : list.array()) {
        Application application;
        application.identifier = entry["id"].string();
        const Value &names = entry["name"];
        application.name = names[names.has(language) ? language : kDefaultLanguage].string();
        if (entry.has("folder")) application.folder = entry["folder"].string();
        application.dock = entry.has("dock") && entry["dock"].boolean();
        result.push_back(std::move(application));
    }
    return result;
}

// The stock application's name; else the last part of the identifier.
std::string nameOf(const std::string &identifier, const std::vector<Application> &stock) {
    auto found = std::ranges::find(stock, identifier, &Application::identifier);
    return found != stock.end() ? found->name : identifier.substr(identifier.rfind('.') + 1);
}

Application readApplication(const Value &table, const std::string &where,
                            const std::vector<Application> &stock) {
    OptionReader reader(table, where);
    Application application;
    auto identifier = reader.string("id");
    application.name = reader.string("name").value_or("");
    application.badge = reader.integer("badge").value_or(0);
    application.running = reader.boolean("running").value_or(false);
    application.folder = reader.string("folder").value_or("");
    application.icon = reader.boolean("icon").value_or(true);
    application.snapshot = reader.boolean("snapshot").value_or(true);
    reader.finish();
    if (!identifier || identifier->empty()) reader.fail("an application needs an 'id'");
    if (application.badge < 0) reader.fail("'badge' must not be negative");
    application.identifier = *identifier;
    if (application.name.empty()) application.name = nameOf(*identifier, stock);
    return application;
}

void readApplications(OptionReader &reader, BootOptions &options, std::string_view stockApplications) {
    auto stock = readStock(stockApplications, options.language);
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
    OptionReader badges(value.isBool() ? Value() : value, "boot: color_badges");
    options.colorBadges = ColorBadges{.enabled = badges.boolean("enabled").value_or(true),
                                      .borders = badges.boolean("borders").value_or(true)};
    badges.finish();
}

FailingWrites readFailingWrites(const Value &table, const std::string &where) {
    static const std::map<std::string, int> errors{
        {"EACCES", EACCES}, {"EIO", EIO}, {"ENOSPC", ENOSPC}, {"EROFS", EROFS}};
    OptionReader reader(table, where);
    FailingWrites failure;
    failure.path = reader.string("path").value_or("");
    auto error = errors.find(reader.string("error").value_or("ENOSPC"));
    failure.call = reader.string("call").value_or("");
    failure.first = reader.integer("first").value_or(1);
    failure.times = reader.integer("times");
    reader.finish();
    if (!failure.path.starts_with("/")) reader.fail("'path' must be an absolute path of the device");
    if (error == errors.end()) reader.fail("'error' must be \"EACCES\", \"EIO\", \"ENOSPC\" or \"EROFS\"");
    if (!failure.call.empty() && failure.call != "open" && failure.call != "rename")
        reader.fail("'call' must be \"open\" or \"rename\"");
    if (failure.first < 1 || failure.times.value_or(1) < 1) reader.fail("'first' and 'times' count from 1");
    failure.error = error->second;
    return failure;
}

void readFaults(OptionReader &reader, BootOptions &options) {
    using Strings = std::vector<std::string>;
    options.hiddenClasses = reader.strings("hide_classes").value_or(Strings{});
    options.hiddenMethods = reader.strings("hide_methods").value_or(Strings{});
    options.silencedMethods = reader.strings("nil_methods").value_or(Strings{});
    options.missingFiles = reader.strings("missing_files").value_or(Strings{});
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
    OptionReader reader(table, "boot");
    BootOptions options;
    readProfile(reader, options);
    options.language = reader.string("language").value_or(kDefaultLanguage);
    readClock(reader, options);
    readSettings(reader, options);
    readApplications(reader, options, stockApplications);
    options.extension = reader.boolean("extension").value_or(true);
    readFaults(reader, options);
    readColorBadges(reader, options);
    options.passcode = reader.boolean("passcode").value_or(false);
    options.passcodeLocked = reader.boolean("passcode_locked").value_or(false);
    options.passcode = options.passcode || options.passcodeLocked;
    options.otherExtension = reader.boolean("apex").value_or(false);
    options.root = reader.string("root").value_or("");
    reader.finish();
    return options;
}

} // namespace sim
