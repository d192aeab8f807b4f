#include "PaneSteps.hpp"

#include "Plan.hpp"
#include "SettingValues.hpp"
#include "Tools/Live/LuaText.hpp"
#include "Tools/Monkey/Rules/Wording.hpp"

namespace sim {

std::string paneText(Hand &hand, const char *key) {
    return wording(hand.phone.device().options().language == "it" ? "it" : "en", key);
}

std::string calmly(const char *name, const Array &arguments) {
    return luaCall(name, arguments, "pane") + kPaneWait;
}

std::string typePaneCode(Hand &hand) {
    std::string problem;
    const Value settings = hand.phone.device().settings().read(&problem).value_or(Value());
    const Value &stored = settings["password"];
    const bool right = stored.isString() && stored.string().size() == 4 && hand.random.percent(75);
    const std::string code = right ? stored.string() : hand.random.pick(codes());
    if (hand.random.percent(60)) return calmly("type", {code});
    const size_t first = hand.random.below(3) + 1;
    hand.plan.emplace_front([rest = code.substr(first)](Hand &) { return calmly("type", {rest}); });
    return calmly("type", {code.substr(0, first)});
}

std::string usePaneRow(Hand &hand) {
    if (!hand.pane || hand.pane->rows.empty()) return "";
    const PaneRow &row = hand.random.pick(hand.pane->rows);
    if (row.kind == "switch") return calmly("toggle", {row.label});
    if (row.kind == "link") return calmly("open", {row.label});
    if (row.kind == "button") return calmly("press", {row.label});
    if (!row.choices.empty()) return calmly("choose", {row.label, hand.random.pick(row.choices)});
    return "";
}

std::string openPane(Hand &hand, const char *key) {
    const std::optional<PaneSight> &pane = hand.pane;
    if (!pane) return "";
    if (pane->alert) return calmly("press", {paneText(hand, "ok")});
    if (pane->sheet) return typePaneCode(hand);
    const std::string label = paneText(hand, key);
    return pane->row(label) ? calmly("open", {label}) : "";
}

std::string leavePane(Hand &hand) {
    const std::optional<PaneSight> &pane = hand.pane;
    if (!pane || pane->type == kFirstPage) return "";
    if (pane->alert) return calmly("press", {paneText(hand, "ok")});
    if (pane->sheet || pane->type == "creatorsController") return calmly("press", {paneText(hand, "cancel")});
    return calmly("back", {});
}

std::string enterPane(Hand &hand, unsigned locked) {
    const std::string open = "pane = phone:open_settings()";
    plan(hand, "pane = nil collectgarbage()");
    if (!hand.random.percent(locked)) return open;
    plan(hand, luaCall("set", {"pass", false}));
    return luaCall("set", {Object{{"pass", true}, {"password", hand.random.pick(codes())}}}) + " " + open;
}

} // namespace sim
