#include "BootArguments.hpp"

#include "Runtime/Values/Json.hpp"
#include "Supervisor/Boot/Extensions.hpp"
#include "Tools/Live/Shot.hpp"

namespace sim {

void SetupArguments::describe(Options &options) {
    options.repeatable(
        {.names = "--extension",
         .about = "Another extension for every device: a library, or a folder that was built (repeatable)",
         .value = "PATH"},
        extensions);
    options.flag({.names = "--fresh",
                  .about = "Start each simulated process by itself instead of forking one that is prepared; "
                           "the same comes of it, later"},
                 fresh, "PENDIX_SIM_FRESH");
}

DeviceSetup SetupArguments::setup() const {
    Installation installation = findInstallation();
    DeviceSetup setup{.installation = installation,
                      .package = readPackage(installation.manifest),
                      .debugger = debugger,
                      .extensions = absolutePaths(extensions, std::filesystem::current_path())};
    if (fresh) setup.nurseries = nullptr;
    return setup;
}

void BootArguments::describe(Options &options) {
    SetupArguments::describe(options);
    const std::pair<const char *, OptionRow> rows[] = {
        {"device", {.names = "--device", .about = "\"iPhone 6\"; pendix-sim profiles lists all"}},
        {"ios", {.names = "--ios", .about = "System version: 8.1"}},
        {"language", {.names = "--language", .about = "en, it or es"}},
        {"clock", {.names = "--clock", .about = "The device's time: \"2015-03-01 10:20:30\""}}};
    for (const auto &[option, row] : rows) options.text(row, texts[option]);
    options.repeatable({.names = "--set",
                        .about = "A setting before the start: enable=true (repeatable)",
                        .value = "KEY=VALUE"},
                       settings);
    options.text({.names = "BOOT,--boot", .about = "More boot options as JSON: '{\"passcode\": true}'"},
                 json);
}

Value BootArguments::table() const {
    Value table = json.empty() ? Value(Object{}) : parseJson(json);
    if (!table.isObject()) throw BootError("the boot options must be a JSON object");
    for (const auto &[name, text] : texts)
        if (!text.empty()) table.set(name, text);
    if (!settings.empty()) {
        Value before = table.has("settings") ? table["settings"] : Value(Object{});
        for (const auto &text : settings) {
            auto [key, value] = settingFrom(text);
            before.set(key, value);
        }
        table.set("settings", before);
    }
    return table;
}

} // namespace sim
