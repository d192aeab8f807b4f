#include "PaneSight.hpp"

#include "Supervisor/Machine/SettingsProcess.hpp"

#include <algorithm>
#include <map>

namespace sim {

namespace {

std::string textOr(const Value &value) { return value.isString() ? value.string() : std::string(); }
double numberOr(const Value &value) { return value.isNumber() ? value.number() : 0; }

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

PaneView readView(const Value &fields) {
    PaneView result;
    SeenView &view = result.view;
    view.type = textOr(fields["class"]);
    view.tag = fields["tag"].integer();
    view.frame = {fields["x"].number(), fields["y"].number(), fields["w"].number(), fields["h"].number()};
    const Value &screen = fields["screen"];
    view.onScreen = {screen["x"].number(), screen["y"].number(), screen["w"].number(), screen["h"].number()};
    view.text = textOr(fields["title"]).empty() ? textOr(fields["text"]) : textOr(fields["title"]);
    view.image = textOr(fields["image"]);
    view.alpha = fields["presented_alpha"].number();
    view.seen = !fields["hidden"].boolean() && view.alpha > 0;
    view.background = textOr(fields["background"]);
    view.radius = fields["corner_radius"].number();
    view.font = numberOr(fields["font_size"]);
    view.ink = textOr(fields["text_color"]).empty() ? textOr(fields["tint"]) : textOr(fields["text_color"]);
    result.shadowRadius = numberOr(fields["shadow_radius"]);
    result.shadowOpacity = numberOr(fields["shadow_opacity"]);
    result.shadow = textOr(fields["shadow_color"]);
    return result;
}

void readViews(const Value &answer, PaneSight &sight) {
    const Array &all = answer["views"].array();
    std::map<int64_t, size_t> places;
    for (size_t i = 0; i < all.size(); ++i) places[all[i]["number"].integer()] = i;
    for (const Value &fields : all) {
        PaneView view = readView(fields);
        for (const Value &child : fields["children"].array())
            if (auto place = places.find(child.integer()); place != places.end())
                view.children.push_back(place->second);
        sight.views.push_back(std::move(view));
    }
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

std::optional<PaneSight> lookAtPane(SettingsProcess *settings) {
    if (!settings || !settings->running()) return std::nullopt;
    try {
        PaneSight sight;
        const Value page = settings->ask("page"), alert = settings->ask("alert"),
                    sheet = settings->ask("sheet");
        sight.type = textOr(page["class"]);
        sight.title = textOr(page["title"]);
        for (const Value &row : page["rows"].array()) sight.rows.push_back(readRow(row));
        if (!alert.isNull()) sight.alert = textOr(alert["title"]);
        if (!sheet.isNull())
            sight.sheet = PaneSheet{sheet["group"].integer(), sheet["dots"].integer(), textOr(sheet["title"]),
                                    textOr(sheet["label"])};
        readViews(settings->ask("windows", Object{{"window", "app"}}), sight);
        return sight;
    } catch (const RequestError &) {
        return std::nullopt;
    }
}

} // namespace sim
