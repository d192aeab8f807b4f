#include "Observation.hpp"

#include "Supervisor/Protocol/Changes.hpp"

namespace sim {

namespace {

Area area(const Array &fields, size_t first) {
    return {fields[first].number(), fields[first + 1].number(), fields[first + 2].number(),
            fields[first + 3].number()};
}

std::string textOr(const Value &value) { return value.isString() ? value.string() : std::string(); }

// The fields as they come, see WindowReport.h in Simulator/Process.
SeenView readView(RowReader row) {
    SeenView view;
    view.depth = row.integer();
    view.type = row.text();
    view.tag = row.integer();
    view.seen = row.flag();
    view.finite = row.flag();
    view.interactive = row.flag();
    view.onScreen = readArea(row);
    view.frame = readArea(row);
    view.name = row.text();
    view.text = row.text();
    view.image = row.text();
    view.recognizers = row.integer();
    view.moving = row.flag();
    view.alpha = row.number();
    view.background = row.text();
    view.radius = row.number();
    view.border = row.number();
    view.ink = row.text();
    view.font = row.number();
    view.picture = row.flag();
    view.scrolled = row.number();
    view.contentWidth = row.number();
    return view;
}

SeenWindow readWindow(const Value &answer) {
    return {.interactive = answer["interactive"].boolean(),
            .hidden = answer["hidden"].boolean(),
            .touchable = answer["touchable"].integer(),
            .views = std::vector<SeenView>(static_cast<size_t>(answer["views"].integer()))};
}

ExtensionState readState(const Value &variables) {
    ExtensionState state;
    const std::pair<const char *, bool *> flags[] = {{"isShow", &state.isShow},
                                                     {"isEditing", &state.isEditing},
                                                     {"locked", &state.locked},
                                                     {"needToPulse", &state.needToPulse}};
    for (const auto &[name, flag] : flags) *flag = variables[name].boolean();
    if (variables.has("datas"))
        for (const auto &text : variables["datas"].array()) state.datas.push_back(text.string());
    return state;
}

template <typename Read>
auto list(const Value &rows, Read read) {
    std::vector<decltype(read(rows.array()))> result;
    for (const auto &row : rows.array()) result.push_back(read(row.array()));
    return result;
}

SeenTimer readTimer(const Array &row) {
    return {row[0].string(), row[1].string(), row[2].number(), row[3].integer()};
}

SeenHook readHook(const Array &row) {
    return {row[0].string(), row[1].string(), row[2].integer(), row[3].integer(), row[4].integer()};
}

SeenBadge readBadge(const Array &row) {
    SeenBadge badge{row[0].string(), row[1].integer(), row[2].boolean(), {}};
    for (const Value &part : row[3].array())
        badge.parts.push_back({part.array()[0].string(), part.array()[1].integer(), part.array()[2].number(),
                               part.array()[3].string()});
    return badge;
}

SeenApplication readApplication(const Array &row) {
    return {row[0].string(), row[1].string(), row[2].boolean(), row[3].boolean()};
}

void readItemPlace(const Value &place, Observation &seen) {
    seen.itemPlace.reset();
    seen.itemGlow = {};
    if (place.isNull()) return;
    const Array &fields = place.array();
    seen.itemPlace = area(fields, 0);
    seen.itemGlow = {fields[4].number(), fields[5].number(), fields[6].number(), textOr(fields[7])};
}

// `take` of the part of that name, where the answer has it.
template <typename Take>
void part(const Value &answer, std::string_view name, Take take) {
    auto found = answer.object().find(name);
    if (found != answer.object().end()) take(found->second);
}

void readDevice(const Value &answer, Observation &seen) {
    part(answer, "timers", [&](const Value &rows) { seen.timers = list(rows, readTimer); });
    part(answer, "hooks", [&](const Value &rows) { seen.hooks = list(rows, readHook); });
    part(answer, "variables", [&](const Value &variables) { seen.extension = readState(variables); });
    part(answer, "display", [&](const Value &on) { seen.display = on.boolean(); });
    part(answer, "screen_locked", [&](const Value &locked) { seen.screenLocked = locked.boolean(); });
    part(answer, "passcode_locked", [&](const Value &locked) { seen.passcodeLocked = locked.boolean(); });
    part(answer, "settings_writes", [&](const Value &count) { seen.settingsWrites = count.integer(); });
    part(answer, "screen", [&](const Value &size) {
        seen.screenWidth = size.array()[0].number();
        seen.screenHeight = size.array()[1].number();
    });
    part(answer, "windows", [&](const Value &windows) {
        seen.windows.clear();
        for (const auto &[role, count] : windows.object()) seen.windows[role] = count.integer();
    });
}

void readHomeScreen(const Value &answer, Observation &seen) {
    part(answer, "badges", [&](const Value &rows) { seen.badges = list(rows, readBadge); });
    part(answer, "applications", [&](const Value &rows) { seen.applications = list(rows, readApplication); });
    part(answer, "foreground", [&](const Value &identifier) { seen.foreground = identifier.string(); });
    part(answer, "item_place", [&](const Value &place) { readItemPlace(place, seen); });
    part(answer, "switcher", [&](const Value &identifiers) {
        seen.switcher.clear();
        for (const auto &identifier : identifiers.array()) seen.switcher.push_back(identifier.string());
    });
    part(answer, "icon", [&](const Value &size) {
        seen.iconWidth = size.array()[0].number();
        seen.iconHeight = size.array()[1].number();
    });
    part(answer, "item", [&](const Value &item) {
        seen.itemPresent = item["present"].boolean();
        seen.itemVisible = item["visible"].boolean();
        seen.itemImage = textOr(item["image"]);
    });
}

// A variable of the extension, as the linker names it.
std::string symbolOf(const std::string &name) {
    return "_ZN6pendix" + std::to_string(name.size()) + name + "E";
}

} // namespace

Area readArea(RowReader &row) {
    Area area;
    for (double *number : {&area.x, &area.y, &area.w, &area.h}) *number = row.number();
    return area;
}

std::vector<size_t> SeenWindow::childrenOf(size_t parent) const {
    std::vector<size_t> children;
    const int64_t depth = views[parent].depth;
    for (size_t i = parent + 1; i < views.size() && views[i].depth > depth; ++i)
        if (views[i].depth == depth + 1) children.push_back(i);
    return children;
}

size_t SeenWindow::child(size_t parent, int64_t tag) const {
    const int64_t depth = views[parent].depth;
    for (size_t i = parent + 1; i < views.size() && views[i].depth > depth; ++i)
        if (views[i].depth == depth + 1 && views[i].tag == tag) return i;
    return npos;
}

size_t SeenWindow::endOf(size_t view) const {
    size_t end = view + 1;
    while (end < views.size() && views[end].depth > views[view].depth) ++end;
    return end;
}

void ObservationReader::readOverlays(const Value &answer) {
    const bool changed = updateRows(views_, answer["views"].data().bytes, readView);
    if (!changed && !answer.has("overlays")) return;
    if (answer.has("overlays")) {
        last_.overlays.clear();
        for (const auto &window : answer["overlays"].array()) last_.overlays.push_back(readWindow(window));
    }
    auto from = views_.begin();
    for (SeenWindow &window : last_.overlays)
        for (SeenView &view : window.views) view = *from++;
}

const Observation &ObservationReader::read(const Value &answer) {
    readOverlays(answer);
    readDevice(answer, last_);
    readHomeScreen(answer, last_);
    since_ = answer["revision"];
    return last_;
}

Object watchArguments() {
    Object flags;
    for (const char *name : {"isShow", "isEditing", "locked", "needToPulse"})
        flags.emplace(name, symbolOf(name));
    return Object{{"flags", flags},
                  {"lists", Object{{"datas", symbolOf("datas")}}},
                  {"at_hooks", Array{"isEditing", "isShow"}}};
}

} // namespace sim
