#include "ViewDump.hpp"

#include "Supervisor/Text/Readable.hpp"

#include <cstdio>
#include <map>

namespace sim {

namespace {

// What a view shows of itself when it differs from a plain view's.
const std::pair<const char *, Value> kDefaults[] = {{"level", 0.0},          {"z", 0.0},
                                                    {"hidden", false},       {"alpha", 1.0},
                                                    {"interactive", true},   {"image", nullptr},
                                                    {"background", nullptr}, {"corner_radius", 0.0},
                                                    {"border_width", 0.0},   {"shadow_opacity", 0.0},
                                                    {"font", nullptr},       {"font_size", nullptr},
                                                    {"text_color", nullptr}, {"state", nullptr}};

std::string number(double value) {
    char text[32];
    snprintf(text, sizeof text, "%g", value);
    return text;
}

std::string shown(const Value &value) { return value.isReal() ? number(value.number()) : readable(value); }

std::string line(const Value &view) {
    std::string text = viewTitle(view) + " (" + number(view["x"].number()) + " " +
                       number(view["y"].number()) + "; " + number(view["w"].number()) + " " +
                       number(view["h"].number()) + ")";
    for (const auto &[name, usual] : kDefaults)
        if (view[name] != usual && view.has(name)) text += std::string(" ") + name + " " + shown(view[name]);
    if (view["presented_alpha"] != view["alpha"])
        text += " presented_alpha " + shown(view["presented_alpha"]);
    static const Value identity = Array{1.0, 0.0, 0.0, 1.0, 0.0, 0.0};
    if (view["transform"] != identity) text += " transform " + readable(view["transform"]);
    for (const char *name : {"scroll", "gestures"})
        if (view.has(name) && view[name] != Value(Array{}))
            text += std::string(" ") + name + " " + readable(view[name]);
    for (const auto &animation : view["animations"].array())
        text += " animates " + animation["keypath"].string();
    return text;
}

void walk(std::vector<ViewLine> &lines, const std::map<int64_t, const Value *> &views, int64_t number,
          size_t depth) {
    const Value &view = *views.at(number);
    lines.push_back({depth, line(view), &view});
    for (const auto &child : view["children"].array()) walk(lines, views, child.integer(), depth + 1);
}

} // namespace

std::string viewTitle(const Value &view) {
    std::string text = view["class"].string();
    if (view["tag"].integer() != 0) text += " tag " + std::to_string(view["tag"].integer());
    for (const char *name : {"name", "text", "title"})
        if (view.has(name)) text += " " + readable(view[name]);
    return text;
}

std::vector<ViewLine> viewLines(const Value &answer) {
    std::map<int64_t, const Value *> views;
    for (const auto &view : answer["views"].array()) views.emplace(view["number"].integer(), &view);
    std::vector<ViewLine> lines;
    for (const auto &root : answer["matches"].array()) walk(lines, views, root.integer(), 0);
    return lines;
}

std::string viewDump(const Value &answer) {
    std::string text;
    for (const auto &line : viewLines(answer)) text += std::string(line.depth * 2, ' ') + line.text + '\n';
    return text;
}

} // namespace sim
