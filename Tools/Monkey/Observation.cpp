#include "Observation.hpp"

namespace sim {

namespace {

Area area(const Array &fields, size_t first) {
    return {fields[first].number(), fields[first + 1].number(), fields[first + 2].number(),
            fields[first + 3].number()};
}

std::string textOr(const Value &value) { return value.isString() ? value.string() : std::string(); }

SeenView readView(const Array &fields) {
    return {.depth = fields[0].integer(),
            .type = fields[1].string(),
            .tag = fields[2].integer(),
            .seen = fields[3].boolean(),
            .finite = fields[4].boolean(),
            .interactive = fields[5].boolean(),
            .onScreen = area(fields, 6),
            .frame = area(fields, 10),
            .name = textOr(fields[14]),
            .text = textOr(fields[15]),
            .image = textOr(fields[16]),
            .recognizers = fields[17].integer(),
            .moving = fields[18].boolean(),
            .alpha = fields[19].number(),
            .background = textOr(fields[20]),
            .radius = fields[21].number(),
            .border = fields[22].number(),
            .ink = textOr(fields[23]),
            .font = fields[24].number(),
            .picture = fields[25].boolean(),
            .scrolled = fields[26].number(),
            .contentWidth = fields[27].number()};
}

SeenWindow readWindow(const Value &answer) {
    SeenWindow window{.interactive = answer["interactive"].boolean(),
                      .hidden = answer["hidden"].boolean(),
                      .touchable = answer["touchable"].integer(),
                      .views = {}};
    for (const auto &view : answer["views"].array()) window.views.push_back(readView(view.array()));
    return window;
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

// A variable of the extension, as the linker names it.
std::string symbolOf(const std::string &name) {
    return "_ZN6pendix" + std::to_string(name.size()) + name + "E";
}

} // namespace

std::vector<size_t> SeenWindow::childrenOf(size_t parent) const {
    std::vector<size_t> children;
    for (size_t i = parent + 1; i < endOf(parent); ++i)
        if (views[i].depth == views[parent].depth + 1) children.push_back(i);
    return children;
}

size_t SeenWindow::child(size_t parent, int64_t tag) const {
    for (size_t view : childrenOf(parent))
        if (views[view].tag == tag) return view;
    return npos;
}

size_t SeenWindow::endOf(size_t view) const {
    size_t end = view + 1;
    while (end < views.size() && views[end].depth > views[view].depth) ++end;
    return end;
}

Observation readObservation(const Value &answer) {
    Observation seen;
    for (const auto &window : answer["overlays"].array()) seen.overlays.push_back(readWindow(window));
    for (const auto &[role, count] : answer["windows"].object()) seen.windows[role] = count.integer();
    seen.timers = list(answer["timers"], [](const Array &row) {
        return SeenTimer{row[0].string(), row[1].string(), row[2].number(), row[3].integer()};
    });
    seen.hooks = list(answer["hooks"], [](const Array &row) {
        return SeenHook{row[0].string(), row[1].string(), row[2].integer(), row[3].integer(),
                        row[4].integer()};
    });
    seen.badges = list(answer["badges"], [](const Array &row) {
        SeenBadge badge{row[0].string(), row[1].integer(), row[2].boolean(), {}};
        for (const Value &part : row[3].array())
            badge.parts.push_back({part.array()[0].string(), part.array()[1].integer(),
                                   part.array()[2].number(), textOr(part.array()[3])});
        return badge;
    });
    seen.applications = list(answer["applications"], [](const Array &row) {
        return SeenApplication{row[0].string(), row[1].string(), row[2].boolean(), row[3].boolean()};
    });
    for (const auto &identifier : answer["switcher"].array()) seen.switcher.push_back(identifier.string());
    seen.foreground = answer["foreground"].string();
    seen.iconWidth = answer["icon"].array()[0].number();
    seen.iconHeight = answer["icon"].array()[1].number();
    seen.screenLocked = answer["screen_locked"].boolean();
    if (const Value &item = answer["item_place"]; !item.isNull()) {
        const Array &fields = item.array();
        seen.itemPlace = area(fields, 0);
        seen.itemGlow = {fields[4].number(), fields[5].number(), fields[6].number(), textOr(fields[7])};
    }
    seen.extension = readState(answer["variables"]);
    seen.itemPresent = answer["item"]["present"].boolean();
    seen.itemVisible = answer["item"]["visible"].boolean();
    seen.itemImage = textOr(answer["item"]["image"]);
    seen.display = answer["display"].boolean();
    seen.passcodeLocked = answer["passcode_locked"].boolean();
    const Array &screen = answer["screen"].array();
    seen.screenWidth = screen[0].number();
    seen.screenHeight = screen[1].number();
    seen.settingsWrites = answer["settings_writes"].integer();
    return seen;
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
