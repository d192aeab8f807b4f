#include "PaneSight.hpp"

#include "Supervisor/Machine/SettingsProcess.hpp"
#include "Supervisor/Protocol/Changes.hpp"

#include <algorithm>
#include <cmath>

namespace sim {

namespace {

std::string textOr(const Value &value) { return value.isString() ? value.string() : std::string(); }

PaneRow readRow(const Value &row) {
    PaneRow result{.label = textOr(row["label"]),
                   .kind = textOr(row["kind"]),
                   .footer = textOr(row["footer"]),
                   .icon = textOr(row["icon"]),
                   .value = row["value"],
                   .choices = {}};
    if (row["choices"].isArray())
        for (const Value &choice : row["choices"].array()) result.choices.push_back(textOr(choice));
    return result;
}

double finite(double number) {
    if (!std::isfinite(number)) throw ValueError("expected number, found none");
    return number;
}

Area finite(const Area &area) {
    for (double number : {area.x, area.y, area.w, area.h}) finite(number);
    return area;
}

// The fields as they come, see InspectionRequests.mm in Simulator/Process/Settings.
PaneView readView(RowReader row) {
    PaneView result;
    SeenView &view = result.view;
    view.depth = row.integer();
    view.type = row.text();
    view.tag = row.integer();
    const bool hidden = row.flag();
    view.frame = finite(readArea(row));
    view.onScreen = finite(readArea(row));
    view.text = row.text();
    view.image = row.text();
    view.alpha = finite(row.number());
    view.seen = !hidden && view.alpha > 0;
    view.background = row.text();
    view.radius = finite(row.number());
    view.ink = row.text();
    view.font = row.number();
    result.shadowRadius = row.number();
    result.shadowOpacity = row.number();
    result.shadow = row.text();
    return result;
}

// Whose children they are follows from the depths.
void nest(std::vector<PaneView> &views) {
    std::vector<size_t> line;
    for (size_t i = 0; i < views.size(); ++i) {
        views[i].children.clear();
        line.resize(static_cast<size_t>(views[i].view.depth));
        if (!line.empty()) views[line.back()].children.push_back(i);
        line.push_back(i);
    }
}

PaneSheet readSheet(const Value &sheet) {
    return {sheet["group"].integer(), sheet["dots"].integer(), textOr(sheet["title"]),
            textOr(sheet["label"])};
}

} // namespace

const PaneView *PaneSight::find(std::string_view wanted) const {
    auto found = std::ranges::find_if(views, [&](const PaneView &one) { return one.view.type == wanted; });
    return found == views.end() ? nullptr : &*found;
}

std::vector<const PaneView *> PaneSight::childrenOf(const PaneView &view) const {
    std::vector<const PaneView *> result;
    for (size_t place : view.children) result.push_back(&views[place]);
    return result;
}

const PaneView *PaneSight::child(const PaneView &view, int64_t tag) const {
    for (size_t place : view.children)
        if (views[place].view.tag == tag) return &views[place];
    return nullptr;
}

const PaneRow *PaneSight::row(std::string_view label) const {
    auto found = std::ranges::find_if(rows, [&](const PaneRow &one) { return one.label == label; });
    return found == rows.end() ? nullptr : &*found;
}

void PaneReader::read(const Value &answer) {
    const Object &parts = answer.object();
    if (auto page = parts.find("page"); page != parts.end()) {
        last_.type = textOr(page->second["class"]);
        last_.title = textOr(page->second["title"]);
        last_.rows.clear();
        for (const Value &row : page->second["rows"].array()) last_.rows.push_back(readRow(row));
    }
    if (auto alert = parts.find("alert"); alert != parts.end()) {
        last_.alert.reset();
        if (!alert->second.isNull()) last_.alert = textOr(alert->second["title"]);
    }
    if (auto sheet = parts.find("sheet"); sheet != parts.end()) {
        last_.sheet.reset();
        if (!sheet->second.isNull()) last_.sheet = readSheet(sheet->second);
    }
    if (updateRows(last_.views, answer["views"].data().bytes, readView)) nest(last_.views);
    since_ = answer["revision"];
}

std::optional<PaneSight> PaneReader::look(SettingsProcess *settings) {
    if (!settings || !settings->running()) {
        since_ = {};
        return std::nullopt;
    }
    try {
        read(settings->ask("inspect", Object{{"since", since_}}));
        return last_;
    } catch (const RequestError &) {
        return std::nullopt;
    }
}

} // namespace sim
