// A way through the pages in Settings, each with the time that it takes to stand still: what the rules of the
// pages judge.
#include "Acts.hpp"
#include "PaneSteps.hpp"

namespace sim {

namespace {

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

std::string stay(Hand &hand) {
    const std::optional<PaneSight> &pane = hand.pane;
    if (!pane) return "";
    if (pane->alert)
        return calmly("press", {hand.random.percent(80) ? paneText(hand, "cancel") : paneText(hand, "ok")});
    if (pane->sheet) return typePaneCode(hand);
    if (pane->type == "colorPickerController")
        return hand.random.percent(65) ? calmly("swipe", {hand.random.pick({"left", "right"})})
                                       : calmly("press", {paneText(hand, "apply")});
    return pane->rows.empty() || pane->type == kFirstPage ? "" : usePaneRow(hand);
}

int weight(const Hand &hand) { return hand.settingsOpen || !hand.fingers.empty() ? 0 : 6; }

std::string tour(Hand &hand) {
    hand.plan.emplace_back([](Hand &) { return "pane:rotate(1) phone:rotate(1)"; });
    hand.plan.emplace_back([](Hand &) { return "phone:wait(1.2)"; });
    for (uint64_t aim = hand.random.below(4) + 1; aim > 0; --aim) {
        for (const char *key : hand.random.pick(aims()))
            hand.plan.emplace_back([key](Hand &now) { return openPane(now, key); });
        for (uint64_t i = hand.random.below(8) + 2; i > 0; --i) hand.plan.emplace_back(stay);
        for (int i = 0; i < 4; ++i) hand.plan.emplace_back(leavePane);
    }
    return enterPane(hand, 50);
}

} // namespace

std::span<const Act> paneTourActs() {
    static const Act acts[] = {{"walk through Settings", weight, tour, kBootRarity}};
    return acts;
}

} // namespace sim
