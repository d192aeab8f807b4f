// The pages in Settings: the rows of each, with their texts and pictures, in their order; where a row leads,
// what a switch stores, which notes come, and what is made of a code that is typed.
#include "Part.hpp"
#include "Settings.hpp"
#include "Wording.hpp"

#include <algorithm>
#include <cstdio>
#include <map>

namespace sim {

namespace {

struct Row {
    const char *kind, *key, *footer;
    const char *page = nullptr; // where it leads
    bool icon = false;
};
using Rows = std::vector<Row>;

constexpr const char *kBackFooter = "by the scheme", *kColors = "colorPickerController";

const std::map<std::string, Rows> &pages() {
    static const std::map<std::string, Rows> table = {
        {"PendixSettingsController",
         {{"switch", "enable", "", nullptr, true},
          {"link", "configuration", "", "configurationController", true},
          {"link", "contacts", "", "creatorsController", true}}},
        {"configurationController",
         {{"switch", "light", "desc_light"},
          {"switch", "back", kBackFooter},
          {"switch", "blur", "desc_blur"},
          {"switch", "fast", "desc_fast"},
          {"switch", "ca", "desc_ca"},
          {"link", "rech", "desc_rech", "reachController"},
          {"switch", "close", "desc_close"},
          {"switch", "paging", "desc_paging"},
          {"switch", "b", "desc_b"},
          {"link", "newb", "desc_newb1", "indeterminateController"},
          {"switch", "badge", "desc_badge"},
          {"segment", "amount", "desc_amount"},
          {"link", "activator", "desc_act"},
          {"link", "perapp", "desc_perapp", "perAppController"},
          {"link", "icon", "desc_icon", "pendixIconController"},
          {"link", "passw", "desc_passw"}}},
        {"reachController",
         {{"switch", "rech", "desc_rech"}, {"choice", "position", "desc_position", "PSListItemsController"}}},
        {"indeterminateController",
         {{"switch", "newb", "desc_newb"},
          {"switch", "auto", "desc_auto"},
          {"link", "colors", "desc_colors", kColors}}},
        {"pendixIconController",
         {{"switch", "hide", "desc_hide"},
          {"switch", "hide_t", "desc_hide_t"},
          {"switch", "glow", "desc_glow"},
          {"link", "tint", "desc_tint", kColors}}},
        {"appController",
         {{"switch", "hide_perapp", "desc_hide_perapp"}, {"switch", "badge_perapp", "desc_badge_perapp"}}},
        {"passwordController",
         {{"switch", "security", "desc_sec"},
          {"switch", "touchid", "desc_id"},
          {"switch", "clear", "desc_clear"},
          {"choice", "where", "desc_where", "NewPSListItemsController"},
          {"switch", "ask", "desc_ask"},
          {"button", "change_pass", "change_pass"}}},
    };
    return table;
}

// The pages speak two languages.
std::string languageOf(const Moment &moment) { return moment.device.language == "it" ? "it" : "en"; }
std::string said(const Moment &moment, std::string_view key) { return wording(languageOf(moment), key); }

bool hasRow(const Moment &moment, const PaneSight &pane, std::string_view key) {
    return std::ranges::any_of(pane.rows, [&](const PaneRow &row) { return row.label == said(moment, key); });
}

// A page keeps the rows with which it was built: where the file has become another one since (`mixed`), it
// may tell of a sensor otherwise.
Rows rowsOf(const Moment &moment, const PaneSight &pane, bool mixed = false) {
    auto found = pages().find(pane.type);
    Rows rows = found == pages().end() ? Rows{} : found->second;
    const bool sensor = mixed ? hasRow(moment, pane, "touchid") : isOn(moment.settings, "hasTouchID");
    std::erase_if(rows, [&](const Row &row) { return !sensor && row.key == std::string_view("touchid"); });
    return rows;
}

std::string storedCode(const Value &settings) {
    return settings["password"].isString() ? settings["password"].string() : "";
}

// What the switch stands for in that settings file.
bool isStored(const Value &settings, const PaneSight &pane, std::string_view key) {
    if (pane.type != "appController") return isOn(settings, key == "security" ? "pass" : std::string(key));
    return settings[pane.title].isObject() && isYes(settings[pane.title][std::string(key)]);
}

void checkRow(const Moment &moment, const PaneRow &row, const Row &wanted, const PaneSight &pane, bool mixed,
              Findings &findings) {
    const std::string key = wanted.key, footer = wanted.footer;
    const std::string name = "the row \"" + said(moment, key) + "\"";
    if (row.label != said(moment, key)) return findings.push_back(name + " is called \"" + row.label + "\"");
    if (row.kind != wanted.kind) findings.push_back(name + " is a " + row.kind);
    if (wanted.icon == row.icon.empty())
        findings.push_back(name + (wanted.icon ? " has no picture" : " has a picture"));
    const char *const back = isOn(moment.settings, "light") ? "desc_back_dark" : "desc_back_light";
    const std::string text = footer.empty() ? "" : said(moment, footer == kBackFooter ? back : footer);
    if (row.footer != text && !(footer == kBackFooter && mixed))
        findings.push_back(name + " is explained by \"" + row.footer + "\", and \"" + text + "\" is right");
    if (wanted.kind == std::string_view("switch") && row.value.isBool() &&
        row.value.boolean() != isStored(moment.settings, pane, key))
        findings.push_back(name + " shows what is not stored");
}

void checkRows(const Moment &moment, const PaneSight &pane, bool mixed, Findings &findings) {
    const Rows wanted = rowsOf(moment, pane, mixed);
    if (wanted.empty()) return;
    std::vector<const PaneRow *> rows;
    for (const PaneRow &row : pane.rows)
        if (row.kind != "text") rows.push_back(&row);
    if (rows.size() != wanted.size())
        return findings.push_back(pane.type + " has " + std::to_string(rows.size()) + " rows, and " +
                                  std::to_string(wanted.size()) + " are right");
    for (size_t i = 0; i < rows.size(); ++i) checkRow(moment, *rows[i], wanted[i], pane, mixed, findings);
}

// "pane:open("label") …" gives the label.
std::optional<std::string> labelOf(const std::string &call, const char *name) {
    const std::string start = std::string("pane:") + name + "(\"";
    const size_t end = call.find("\") phone:wait(1.2)");
    if (!call.starts_with(start) || end == call.npos) return std::nullopt;
    return call.substr(start.size(), end - start.size());
}

const Row *wantedRow(const Moment &moment, const Rows &rows, const std::string &label) {
    auto found = std::ranges::find_if(rows, [&](const Row &row) { return said(moment, row.key) == label; });
    return found == rows.end() ? nullptr : &*found;
}

std::string noteAfter(const Moment &moment, const PaneSight &before, std::string_view key, bool on) {
    if (before.type == "indeterminateController") return said(moment, "resp");
    if (key == "b") return said(moment, "resp");
    if (before.type == "configurationController" && key == "rech" && on) return said(moment, "rech");
    return "";
}

void afterToggle(const Moment &moment, const std::string &label, Findings &findings) {
    const PaneSight &before = *moment.paneBefore, &after = *moment.paneNow;
    const Rows rows = rowsOf(moment, before);
    const Row *wanted = wantedRow(moment, rows, label);
    if (!wanted || before.sheet || before.alert) return;
    const std::string_view key = wanted->key;
    const bool was = isStored(moment.settingsBefore, before, key),
               is = isStored(moment.settings, before, key);
    if (key == "security" && !storedCode(moment.settingsBefore).empty()) {
        if (!after.sheet || after.sheet->title != said(moment, "write"))
            findings.push_back("the lock is changed without the code");
        if (was != is) findings.push_back("the lock is changed before the code was right");
        return;
    }
    if (was == is) findings.push_back("the switch \"" + label + "\" stores nothing");
    const std::string note = noteAfter(moment, before, key, is);
    if (after.alert.value_or("") != note)
        findings.push_back("after the switch \"" + label + "\" the note \"" + after.alert.value_or("") +
                           "\" is there, and \"" + note + "\" is right");
}

void afterOpening(const Moment &moment, const std::string &label, Findings &findings) {
    const PaneSight &before = *moment.paneBefore, &after = *moment.paneNow;
    if (before.sheet || before.alert) return;
    const Rows rows = rowsOf(moment, before);
    const Row *wanted = wantedRow(moment, rows, label);
    if (wanted && wanted->page && after.type != wanted->page)
        findings.push_back("the row \"" + label + "\" leads to " + after.type);
    if (!wanted || wanted->key != std::string_view("passw")) return;
    const bool asks = !storedCode(moment.settings).empty() && isOn(moment.settings, "pass");
    if (asks != after.sheet.has_value())
        findings.push_back(asks ? "the lock's page does not ask for the code"
                                : "the lock's page asks for a code");
}

// A sheet at rest, and digits typed into it that do not go beyond the fourth.
void afterTyping(const Moment &moment, const std::string &text, PaneMemory &memory, Findings &findings) {
    const PaneSight &before = *moment.paneBefore, &after = *moment.paneNow;
    if (!before.sheet || before.alert || text.find_first_not_of("0123456789") != text.npos) return;
    const PaneSheet &sheet = *before.sheet;
    if (sheet.dots == 0) memory.typed = "";
    if (!memory.typed || memory.typed->size() != static_cast<size_t>(sheet.dots)) return memory.typed.reset();
    const std::string code = *memory.typed += text;
    if (code.size() > 4) return memory.typed.reset();
    auto stays = [&](int64_t dots) {
        if (!after.sheet || after.sheet->label != sheet.label || after.sheet->dots != dots)
            findings.push_back("\"" + code + "\" was typed at \"" + sheet.label +
                               "\", which is to stay with " + std::to_string(dots) + " dots");
    };
    auto goesOn = [&](std::string_view key) {
        if (!after.sheet || after.sheet->label != said(moment, key) || after.sheet->dots != 0)
            findings.push_back("\"" + code + "\" was typed at \"" + sheet.label + "\", and \"" +
                               said(moment, key) + "\" does not come");
    };
    auto leaves = [&] {
        if (after.sheet)
            findings.push_back("\"" + code + "\" was typed at \"" + sheet.label + "\", and the sheet stays");
    };
    if (code.size() < 4) return stays(static_cast<int64_t>(code.size()));
    const bool right = code == storedCode(moment.settingsBefore);
    if (sheet.label == said(moment, "write")) right ? leaves() : stays(0);
    if (sheet.label == said(moment, "old")) right ? goesOn("new_pass") : stays(0);
    if (sheet.label == said(moment, "new_pass")) {
        goesOn("rewrite");
        memory.newCode = code;
    } else if (sheet.label == said(moment, "rewrite") && memory.newCode) {
        if (code != *memory.newCode) return stays(0);
        leaves();
        if (storedCode(moment.settings) != code) findings.push_back("the new code is not stored");
    }
}

} // namespace

void checkPane(const Moment &moment, Memory &memory, Findings &findings) {
    PaneMemory &pane = memory.pane;
    if (!moment.paneNow) return void(pane = {});
    pane.mixed =
        (pane.mixed && moment.paneBefore) || (moment.settingsChanged && moment.call.starts_with("phone:"));
    checkRows(moment, *moment.paneNow, pane.mixed, findings);
    if (!moment.paneBefore) return;
    if (auto label = labelOf(moment.call, "toggle")) afterToggle(moment, *label, findings);
    if (auto label = labelOf(moment.call, "open")) afterOpening(moment, *label, findings);
    if (auto text = labelOf(moment.call, "type"))
        afterTyping(moment, *text, pane, findings);
    else if (moment.call.starts_with("pane:type") || moment.call.starts_with("pane:erase"))
        pane.typed.reset();
}

} // namespace sim
