// A way through the pages in Settings, each with the time that it takes to stand still: what the rules of the
// pages judge.
#include "Acts.hpp"
#include "SettingValues.hpp"
#include "Tools/Live/LuaText.hpp"
#include "Tools/Monkey/Rules/PaneSight.hpp"
#include "Tools/Monkey/Rules/Wording.hpp"

namespace sim {

namespace {

constexpr const char *kWait = " phone:wait(1.2)", *kFirstPage = "PendixSettingsController";
constexpr int kBootRarity = 4;
using Path = std::vector<const char *>;

// Where to: the rows to open, one after the other, by their texts' keys.
const std::vector<Path> &aims() {
    static const std::vector<Path> list = {{"configuration"},
                                           {"configuration", "passw"},
                                           {"configuration", "passw"},
                                           {"configuration", "icon"},
                                           {"configuration", "icon", "tint"},
                                           {"configuration", "newb", "colors"},
                                           {"contacts"},
                                           {"configuration", "newb", "colors"},
                                           {"configuration", "rech"},
                                           {"configuration", "newb"},
                                           {"configuration", "perapp"},
                                           {"configuration", "icon", "tint"}};
    return list;
}

std::string said(Hand &hand, const char *key) {
    return wording(hand.phone.device().options().language == "it" ? "it" : "en", key);
}

std::string calm(const char *name, const Array &arguments) {
    return luaCall(name, arguments, "pane") + kWait;
}
std::string back() { return std::string("pane:back()") + kWait; }

// Four digits, now and then in two parts; more often right than not.
std::string typeCode(Hand &hand) {
    std::string problem;
    const Value settings = hand.phone.device().settings().read(&problem).value_or(Value());
    const Value &stored = settings["password"];
    const bool right = stored.isString() && stored.string().size() == 4 && hand.random.percent(75);
    const std::string code = right ? stored.string() : hand.random.pick(codes());
    if (hand.random.percent(60)) return calm("type", {code});
    const size_t first = hand.random.below(3) + 1;
    hand.plan.emplace_front([rest = code.substr(first)](Hand &) { return calm("type", {rest}); });
    return calm("type", {code.substr(0, first)});
}

std::string useRow(Hand &hand, const PaneSight &page) {
    const PaneRow &row = hand.random.pick(page.rows);
    if (row.kind == "switch") return calm("toggle", {row.label});
    if (row.kind == "link") return calm("open", {row.label});
    if (row.kind == "button") return calm("press", {row.label});
    if (!row.choices.empty()) return calm("choose", {row.label, hand.random.pick(row.choices)});
    return "";
}

std::string stay(Hand &hand) {
    const std::optional<PaneSight> &pane = hand.pane;
    if (!pane) return "";
    if (pane->alert)
        return calm("press", {hand.random.percent(80) ? said(hand, "cancel") : said(hand, "ok")});
    if (pane->sheet) return typeCode(hand);
    if (pane->type == "colorPickerController")
        return hand.random.percent(65) ? calm("swipe", {hand.random.pick({"left", "right"})})
                                       : calm("press", {said(hand, "apply")});
    return pane->rows.empty() || pane->type == kFirstPage ? "" : useRow(hand, *pane);
}

// One step towards the first page.
std::string leave(Hand &hand) {
    const std::optional<PaneSight> &pane = hand.pane;
    if (!pane || pane->type == kFirstPage) return "";
    if (pane->alert) return calm("press", {said(hand, "ok")});
    if (pane->sheet || pane->type == "creatorsController") return calm("press", {said(hand, "cancel")});
    return back();
}

std::string open(Hand &hand, const char *key) {
    const std::optional<PaneSight> &pane = hand.pane;
    if (!pane) return "";
    if (pane->alert) return calm("press", {said(hand, "ok")});
    if (pane->sheet) return typeCode(hand);
    const std::string label = said(hand, key);
    return pane->row(label) ? calm("open", {label}) : "";
}

int weight(const Hand &hand) { return hand.settingsOpen || !hand.fingers.empty() ? 0 : 6; }

std::string tour(Hand &hand) {
    hand.plan.emplace_back([](Hand &) { return "pane:rotate(1) phone:rotate(1)"; });
    hand.plan.emplace_back([](Hand &) { return "phone:wait(1.2)"; });
    for (uint64_t aim = hand.random.below(4) + 1; aim > 0; --aim) {
        for (const char *key : hand.random.pick(aims()))
            hand.plan.emplace_back([key](Hand &now) { return open(now, key); });
        for (uint64_t i = hand.random.below(8) + 2; i > 0; --i) hand.plan.emplace_back(stay);
        for (int i = 0; i < 4; ++i) hand.plan.emplace_back(leave);
    }
    hand.plan.emplace_back([](Hand &) { return "pane = nil collectgarbage()"; });
    if (hand.random.percent(50)) return "pane = phone:open_settings()";
    // A lock keeps the rest from being reached, so it is taken away again.
    hand.plan.emplace_back([](Hand &) { return luaCall("set", {"pass", false}); });
    return luaCall("set", {Object{{"pass", true}, {"password", hand.random.pick(codes())}}}) +
           " pane = phone:open_settings()";
}

} // namespace

std::span<const Act> paneTourActs() {
    static const Act acts[] = {{"walk through Settings", weight, tour, kBootRarity}};
    return acts;
}

} // namespace sim
