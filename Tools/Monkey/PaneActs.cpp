// The Settings application: opened, used as its page allows, and closed.
#include "Acts.hpp"
#include "SettingValues.hpp"
#include "Supervisor/Machine/SimulatedProcess.hpp"
#include "Tools/Live/LuaText.hpp"

namespace sim {

namespace {

int openWeight(const Hand &hand) { return hand.settingsOpen ? 0 : 1; }
template <int weight>
int whileOpen(const Hand &hand) {
    return hand.settingsOpen ? weight : 0;
}

std::string openPane(Hand &) { return "pane = phone:open_settings()"; }
std::string closePane(Hand &) { return "pane = nil collectgarbage()"; }
std::string back(Hand &) { return "pane:back()"; }

std::string paneCall(const char *name, const Array &arguments) { return luaCall(name, arguments, "pane"); }

Value ask(Hand &hand, const char *request) {
    try {
        return hand.phone.settings()->ask(request);
    } catch (const RequestError &) {
        return {};
    }
}

std::string useRow(Hand &hand, const Value &row) {
    const auto &kind = row["kind"].string();
    const Value &label = row["label"];
    if (kind == "switch") return paneCall("toggle", {label});
    if (kind == "link") return paneCall("open", {label});
    if (kind == "button") return paneCall("press", {label});
    bool offers = row["choices"].isArray() && !row["choices"].array().empty();
    if (offers) return paneCall("choose", {label, hand.random.pick(row["choices"].array())});
    return kind == "choice" ? paneCall("open", {label}) : back(hand);
}

// What the alert or the page in front offers.
std::string use(Hand &hand) {
    if (Value alert = ask(hand, "alert"); !alert.isNull() && !alert["buttons"].array().empty())
        return paneCall("press", {hand.random.pick(alert["buttons"].array())});
    Value page = ask(hand, "page");
    if (page.isNull() || page["rows"].array().empty()) return back(hand);
    return useRow(hand, hand.random.pick(page["rows"].array()));
}

std::string type(Hand &hand) {
    if (hand.random.percent(20)) return paneCall("erase", {hand.random.between(0, 5)});
    return paneCall("type", {hand.random.percent(70) ? hand.random.pick(codes())
                                                     : std::string(hand.random.pick({"a", "12", "0 9"}))});
}

std::string touch(Hand &hand) {
    Place place = anywhere(hand);
    if (hand.random.percent(60)) return "pane:tap" + pointText(place);
    double dx = static_cast<double>(hand.random.between(-150, 150));
    double dy = static_cast<double>(hand.random.between(-150, 150));
    return "pane:fling(" + pointText(place) + ", " + numberText(dx) + ", " + numberText(dy) + ", 0.1)";
}

std::string swipe(Hand &hand) { return paneCall("swipe", {hand.random.pick({"left", "right"})}); }
std::string rotate(Hand &hand) { return paneCall("rotate", {hand.random.pick<int64_t>({1, 1, 2, 3, 4})}); }

} // namespace

std::span<const Act> paneActs() {
    constexpr int kBootRarity = 5;
    static const Act acts[] = {{"open Settings", openWeight, openPane, kBootRarity},
                               {"use a row of Settings", whileOpen<40>, use},
                               {"back in Settings", whileOpen<12>, back},
                               {"touch Settings", whileOpen<20>, touch},
                               {"type in Settings", whileOpen<4>, type},
                               {"turn Settings", whileOpen<3>, rotate},
                               {"swipe in Settings", whileOpen<1>, swipe},
                               {"close Settings", whileOpen<4>, closePane}};
    return acts;
}

} // namespace sim
