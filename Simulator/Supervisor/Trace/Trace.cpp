#include "Trace.hpp"

#include "Runtime/Values/Json.hpp"
#include "Runtime/Values/Nanoseconds.hpp"
#include "Supervisor/Boot/Package.hpp"
#include "Supervisor/Machine/ViewDump.hpp"
#include "Supervisor/Text/Readable.hpp"

#include <cstdio>
#include <stdexcept>

namespace sim {

namespace {

// "x y w h", rounded to tenths of a point.
std::string shortFrame(const Value &frame) {
    char text[96];
    snprintf(text, sizeof text, "%.4g %.4g %.4g %.4g", frame["x"].number(), frame["y"].number(),
             frame["w"].number(), frame["h"].number());
    return text;
}

Value told(const Value &event) {
    Object fields = event.object();
    fields.erase("t");
    fields.erase("kind");
    std::string text;
    for (const auto &[name, value] : fields)
        text +=
            (text.empty() ? "" : "  ") + name + " " + (value.isString() ? value.string() : readable(value));
    return Array{event["t"], event["kind"], text};
}

std::string contentOf(const std::string &file) {
    try {
        return readFile(file);
    } catch (const std::runtime_error &) {
        return ""; // of a text that a script made itself
    }
}

} // namespace

TraceMoment::TraceMoment(const SimulatedScreen &screen)
    : now(screen.now()), acts(screen.acts()), generation(screen.generation()),
      settings(screen.settings().state()) {}

Trace::Screen &Trace::screenOf(SimulatedScreen &screen, uint64_t serial) {
    auto [known, isNew] = known_.try_emplace(serial, Screen{screens_.size()});
    if (isNew) screens_.push_back(screen.description());
    return known->second;
}

Value Trace::picture(SimulatedScreen &screen) {
    try {
        return pictures_.add(screen.picture());
    } catch (const std::runtime_error &) {
        return nullptr;
    }
}

size_t Trace::line(const std::string &text) {
    auto [known, isNew] = lineNumbers_.try_emplace(text, lines_.size());
    if (isNew) lines_.push_back(text);
    return known->second;
}

Value Trace::tree(SimulatedScreen &screen) {
    try {
        Value answer = screen.ask("windows");
        std::vector<size_t> numbers;
        for (const auto &view : viewLines(answer))
            numbers.push_back(
                line(std::string(view.depth, ' ') + view.text + '\t' + shortFrame((*view.view)["screen"])));
        auto [known, isNew] = treeNumbers_.try_emplace(numbers, trees_.size());
        if (isNew) trees_.push_back(Array(numbers.begin(), numbers.end()));
        return known->second;
    } catch (const std::runtime_error &) {
        return nullptr;
    }
}

Value Trace::places(const std::vector<TracePlace> &places) {
    Array list;
    for (const auto &[file, line] : places) {
        auto [known, isNew] = sourceNumbers_.try_emplace(file, sources_.size());
        if (isNew) sources_.push_back(Object{{"file", file}, {"text", contentOf(file)}});
        list.push_back(Array{known->second, line});
    }
    return list;
}

void Trace::addStep(SimulatedScreen &screen, uint64_t serial, const std::string &call,
                    const std::vector<TracePlace> &callers, const TraceMoment &before) {
    Screen &known = screenOf(screen, serial);
    Array events;
    for (const auto &event : screen.events().since(known.events)) events.push_back(told(event));
    known.events = screen.events().size();
    steps_.push_back(Object{{"call", call},
                            {"places", places(callers)},
                            {"screen", known.place},
                            {"from", toSeconds(before.now)},
                            {"to", toSeconds(screen.now())},
                            {"picture", picture(screen)},
                            {"tree", tree(screen)},
                            {"events", std::move(events)},
                            {"test", test_}});
}

void Trace::addFailure(const std::string &text) {
    std::vector<TracePlace> callers;
    size_t colon = text.find(':'), end = text.find_first_not_of("0123456789", colon + 1);
    bool placed = colon != text.npos && end != text.npos && end > colon + 1;
    if (placed)
        callers.push_back({text.substr(0, colon), std::stoi(text.substr(colon + 1, end - colon - 1))});
    Object step = {{"screen", nullptr}, {"from", 0.0}, {"to", 0.0}, {"picture", nullptr}, {"tree", nullptr}};
    if (!steps_.empty()) step = steps_.back().object();
    step["from"] = step["to"];
    step["call"] = "failed";
    step["failure"] = placed && text.find(": ", end) != text.npos ? text.substr(text.find(": ", end) + 2)
                      : placed                                    ? text.substr(end + 1)
                                                                  : text;
    step["places"] = places(callers);
    step["events"] = Array{};
    step["test"] = test_;
    steps_.push_back(std::move(step));
}

std::string Trace::json() const {
    Object content = {{"script", script_.string()},
                      {"sources", sources_},
                      {"screens", screens_},
                      {"lines", lines_},
                      {"trees", trees_},
                      {"pictures", pictures_.list()},
                      {"steps", steps_}};
    std::string text = toJson(content), safe;
    safe.reserve(text.size());
    for (char byte : text) byte == '<' ? safe += "\\u003c" : safe += byte;
    return safe;
}

} // namespace sim
