#include "Reference.hpp"

#include "Supervisor/Boot/KnownSettings.hpp"
#include "Supervisor/Boot/OptionTables.hpp"
#include "Supervisor/Machine/EventKinds.hpp"
#include "Supervisor/Profiles/Profiles.hpp"
#include "Supervisor/Script/FingerEvents.hpp"
#include "Supervisor/Script/Library.hpp"
#include "Supervisor/Script/Phone.hpp"
#include "Supervisor/Script/Record.hpp"

#include <cstdio>

namespace sim {

namespace {

using Sections = std::vector<ReferenceSection>;

std::vector<std::pair<std::string, std::string>> rowsOf(const std::vector<Described> &list) {
    std::vector<std::pair<std::string, std::string>> rows;
    for (const auto &row : list) rows.emplace_back(row.name, row.about.text());
    return rows;
}

std::string call(const std::string &name, const std::vector<Described> &parameters) {
    std::string text = name + "(";
    for (const auto &parameter : parameters)
        text += (&parameter == &parameters[0] ? "" : ", ") + std::string(parameter.name);
    return text + ")";
}

void addCalls(Sections &sections) {
    for (const auto &family : globalFamilies()) {
        ReferenceSection section = {
            .name = family.name, .title = family.title.text(), .text = "", .entries = {}};
        for (const auto &global : family.globals)
            section.entries.push_back({global.name, call(global.name, global.parameters), global.about.text(),
                                       rowsOf(global.parameters)});
        sections.push_back(section);
    }
    for (const auto &family : methodFamilies()) {
        bool both = family.ofPhone && family.ofPane;
        std::string owner = family.ofPhone ? "phone:" : "pane:";
        ReferenceSection section = {.name = family.name,
                                    .title = family.title.text(),
                                    .text = both ? "A pane has these calls too." : "",
                                    .entries = {}};
        for (const auto &method : family.methods)
            section.entries.push_back({method.name, call(owner + method.name, method.parameters),
                                       method.about.text(), rowsOf(method.parameters)});
        sections.push_back(section);
    }
}

void addOptions(Sections &sections) {
    ReferenceSection section = {"options", "Options of boot", "Of `settings_app` as well.", {}};
    for (const auto *table : {&bootOptionTable(), &applicationOptionTable(), &colorBadgeOptionTable(),
                              &failingWriteOptionTable()})
        section.entries.push_back({table->name, std::string("Options: ") + table->name, table->about.text(),
                                   rowsOf(table->options)});
    sections.push_back(section);
}

void addTables(Sections &sections) {
    ReferenceSection section = {"tables",
                                "Tables that calls take and give",
                                "A field that is absent reads as nil; one that never exists is an error.",
                                {}};
    for (const auto &kind : recordKinds())
        if (&kind != &recordKind(Record::event))
            section.entries.push_back(
                {kind.name, std::string("Table: ") + kind.name, kind.about.text(), rowsOf(kind.fields)});
    sections.push_back(section);
}

void addEvents(Sections &sections) {
    ReferenceSection section = {
        "events",
        "Events",
        "Each has `t`, seconds since `boot` returned, and its `kind`. What Settings does is "
        "in the pane's list.",
        {}};
    for (const auto &kind : eventKinds())
        section.entries.push_back(
            {kind.name, std::string("Event: ") + kind.name, kind.about.text(), rowsOf(kind.fields)});
    ReferenceEntry finger = {"finger", "Names of the sensor's events", "What `phone:finger` takes.", {}};
    for (const auto &event : fingerEvents())
        finger.rows.emplace_back(event.name, std::to_string(event.number) + ": " + event.about.text());
    sections.push_back(section);
    sections.push_back({"sensor", "The fingerprint sensor", "", {finger}});
}

void addDevices(Sections &sections) {
    ReferenceEntry entry = {"device", "The option `device`", "", {}};
    for (const auto &profile : profiles()) {
        char text[96];
        snprintf(text, sizeof text, "%g x %g points, %g pixels a point; %s; ", profile.width, profile.height,
                 profile.scale, profile.machine);
        entry.rows.emplace_back(profile.name,
                                text + std::string(profile.touchSensor ? "fingerprint sensor; " : "") +
                                    "iOS " + versionList(profile));
    }
    sections.push_back({"devices", "Devices", "", {entry}});
}

std::string stored(const KnownSetting &setting) {
    std::string text = setting.kind;
    for (const auto &value : setting.values)
        text += (&value == &setting.values[0] ? ": \"" : ", \"") + value + "\"";
    return text;
}

void addSettings(Sections &sections, const Installation &installation) {
    auto known = readKnownSettings(installation.settings);
    if (known.empty()) return;
    ReferenceEntry file = {"settings", "Keys of the settings file", "", {}};
    ReferenceEntry own = {"settings", "Keys of an application's own dictionary", "", {}};
    for (const auto &setting : known) {
        std::string text =
            setting.meaning + ". Stored as " + stored(setting) + "; without it: " + setting.absent + ".";
        if (!setting.label.empty()) text += " In Settings: \"" + setting.label + "\".";
        (setting.ofApplication() ? own : file).rows.emplace_back(setting.key, text);
    }
    sections.push_back(
        {"settings",
         "Settings of the extension",
         "For `settings` of `boot` and for `phone:set`. An application's own stand in a dictionary "
         "under its identifier.",
         {file, own}});
}

} // namespace

std::vector<ReferenceSection> makeReference(const Installation &installation) {
    Sections sections;
    addCalls(sections);
    addOptions(sections);
    addTables(sections);
    addEvents(sections);
    addDevices(sections);
    addSettings(sections, installation);
    return sections;
}

} // namespace sim
