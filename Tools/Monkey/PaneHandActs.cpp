// Two fingers on two rows in Settings, and coming back to the page behind the code by all its ways: what a
// hand does there that does not look where it is.
#include "Acts.hpp"
#include "PaneSteps.hpp"
#include "Plan.hpp"
#include "Tools/Live/Journal.hpp"
#include "Tools/Live/LuaText.hpp"

#include <cmath>

namespace sim {

namespace {

constexpr int kBootRarity = 4;
constexpr double kBars = 66, kLeftList = 320; // points: above the rows, and the list beside a tablet's pages

int weight(const Hand &hand) { return hand.settingsOpen || !hand.fingers.empty() ? 0 : 6; }

struct Rows {
    std::vector<Place> back, left, leading, locked, others;
};

bool isIn(const Area &area, const Place &place) {
    return place.x > area.x && place.x < area.x + area.w && place.y > area.y && place.y < area.y + area.h;
}

// The text of a row among what lies in its cell.
const PaneRow *rowIn(const PaneSight &pane, const PaneView &cell) {
    for (size_t place : cell.children) {
        if (const PaneRow *row = pane.row(pane.views[place].view.text)) return row;
        if (const PaneRow *row = rowIn(pane, pane.views[place])) return row;
    }
    return nullptr;
}

// What a finger can be put on, upright on the screen. The rows of a page end before its bars.
Rows rowsOf(Hand &hand) {
    Rows rows;
    const PaneSight &pane = *hand.pane;
    if (pane.views.empty()) return rows;
    const Area screen = pane.views.front().view.onScreen;
    const std::string locked = paneText(hand, "passw");
    for (const PaneView &one : pane.views) {
        const Area &area = one.view.onScreen;
        const Place middle{area.x + area.w / 2, area.y + area.h / 2, 0};
        if (!one.view.seen || !isIn(screen, middle)) continue;
        if (one.view.type == "UINavigationItemButtonView") rows.back.push_back(middle);
        if (one.view.type.find("TableCell") == std::string::npos || middle.y < kBars) continue;
        const PaneRow *row = rowIn(pane, one);
        if (!row && area.x == 0 && area.w == kLeftList && screen.w > 2 * kLeftList)
            rows.left.push_back(middle);
        else if (row && row->label == locked)
            rows.locked.push_back(middle);
        else if (row && row->kind != "switch" && row->kind != "segment")
            rows.leading.push_back(middle);
        else
            rows.others.push_back(middle);
    }
    return rows;
}

// What leads away is touched more often than what does not, and most often what leads behind the code.
std::optional<Place> oneOf(Hand &hand, const Rows &rows) {
    const std::pair<const std::vector<Place> *, unsigned> kinds[] = {
        {&rows.locked, 30}, {&rows.back, 25}, {&rows.left, 20}, {&rows.leading, 60}, {&rows.others, 100}};
    for (const auto &[places, percent] : kinds)
        if (!places->empty() && hand.random.percent(percent)) return hand.random.pick(*places);
    return std::nullopt;
}

std::string seconds(Hand &hand, int64_t most) {
    return "pane:wait(" + secondsText(hand.random.between(0, most) * 1'000'000) + ")";
}

// At once, within some frames, or later.
std::string pause(Hand &hand) {
    const int64_t most = hand.random.pick<int64_t>({0, 60, 400});
    return seconds(hand, most);
}

std::string twoFingers(Hand &hand) {
    if (!hand.pane || hand.pane->sheet || hand.pane->alert) return "";
    const Rows rows = rowsOf(hand);
    const auto first = oneOf(hand, rows), second = oneOf(hand, rows);
    if (!first || !second) return "";
    const int lifted = hand.random.percent(50) ? 1 : 2;
    std::string line = "pane:down(" + pointText(*first) + ", 1) " + seconds(hand, 300);
    line += " pane:down(" + pointText(*second) + ", 2) " + seconds(hand, 100);
    line += " pane:up(" + std::to_string(lifted) + ") " + pause(hand);
    return line + " pane:up(" + std::to_string(3 - lifted) + ")";
}

std::string tapLeftList(Hand &hand) {
    if (!hand.pane || hand.pane->sheet) return "";
    const Rows rows = rowsOf(hand);
    return rows.left.empty() ? "" : "pane:tap" + pointText(hand.random.pick(rows.left)) + kPaneWait;
}

bool isLeftEntry(const PaneSight &pane, const PaneView &view) {
    return view.view.text == "Pendix" && view.view.seen && view.view.onScreen.x < kLeftList &&
           view.view.onScreen.y > kBars && pane.views.front().view.onScreen.w > 2 * kLeftList;
}

// To the first page at once, by the extension's own entry.
std::string tapOwnEntry(Hand &hand) {
    if (!hand.pane || hand.pane->sheet) return "";
    for (const PaneView &one : hand.pane->views) {
        const Area &area = one.view.onScreen;
        if (isLeftEntry(*hand.pane, one))
            return "pane:tap" + pointText({area.x + area.w / 2, area.y + area.h / 2, 0}) + kPaneWait;
    }
    return "";
}

// What covers the page goes away: a sheet of its own or of somebody else's.
std::string cancel(Hand &hand) { return calmly("press", {paneText(hand, "cancel")}); }

// A step towards the second page, from which the others are reached.
std::string approach(Hand &hand) {
    const std::optional<PaneSight> &pane = hand.pane;
    if (!pane || pane->type == kSecondPage) return "";
    if (pane->type == kFirstPage) return openPane(hand, "configuration");
    if (std::string line = hand.random.percent(30) ? tapOwnEntry(hand) : ""; !line.empty()) return line;
    return !pane->sheet && !pane->alert && pane->rows.empty() ? cancel(hand) : leavePane(hand);
}

std::string scroll(Hand &hand) {
    if (!hand.pane || hand.pane->sheet || hand.pane->rows.empty() || hand.pane->views.empty()) return "";
    const Area &screen = hand.pane->views.front().view.onScreen;
    const double way = std::round(screen.h * (hand.random.percent(75) ? -0.6 : 0.6));
    const Place start{screen.w - 8, std::round(screen.h * (way < 0 ? 0.85 : 0.25)), 0};
    const std::string once = "pane:drag(" + pointText(start) + ", 0, " + numberText(way) + ", 0.2)";
    std::string line = once;
    for (uint64_t i = hand.random.below(4); i > 0; --i) line += " " + once;
    return line + kPaneWait;
}

std::string goBack(Hand &) { return calmly("back", {}); }

// What a person does next who sees what came of it.
std::string next(Hand &hand) {
    const std::optional<PaneSight> &pane = hand.pane;
    if (!pane) return "";
    if (pane->alert) return calmly("press", {paneText(hand, "ok")});
    if (pane->sheet) return hand.random.percent(50) ? typePaneCode(hand) : cancel(hand);
    if (pane->rows.empty()) return hand.random.percent(60) ? cancel(hand) : goBack(hand);
    switch (hand.random.below(5)) {
    case 0:
        return goBack(hand);
    case 1:
        return tapLeftList(hand);
    case 2:
        return openPane(hand, "passw");
    case 3:
        return std::string("phone:wait(0.6)") + kPaneWait;
    default:
        return usePaneRow(hand);
    }
}

std::string openLocked(Hand &hand) { return openPane(hand, "passw"); }
std::string openItsList(Hand &hand) {
    if (!hand.pane || hand.pane->sheet) return "";
    const std::string label = paneText(hand, "where");
    return hand.pane->row(label) ? calmly("open", {label}) : "";
}
std::string pass(Hand &hand) { return hand.pane && hand.pane->sheet ? typePaneCode(hand) : ""; }
std::string look(Hand &) { return std::string("phone:wait(0.6)") + kPaneWait; }

void planSteps(Hand &hand, std::initializer_list<Step> steps) {
    for (Step step : steps) hand.plan.emplace_back(step);
}

std::string holdRows(Hand &hand) {
    for (uint64_t i = hand.random.below(4) + 2; i > 0; --i) {
        planSteps(hand, {approach, approach, approach});
        if (hand.random.percent(60)) hand.plan.emplace_back(scroll);
        planSteps(hand, {twoFingers, look});
        for (uint64_t steps = hand.random.below(3) + 1; steps > 0; --steps) hand.plan.emplace_back(next);
    }
    return enterPane(hand, 70);
}

std::string comeAgain(Hand &hand) {
    for (uint64_t i = hand.random.below(2) + 2; i > 0; --i) {
        planSteps(hand, {approach, approach, openLocked, pass, pass});
        if (hand.random.percent(70)) hand.plan.emplace_back(openItsList);
        if (hand.random.percent(30)) hand.plan.emplace_back(usePaneRow);
        hand.plan.emplace_back(hand.random.pick<Step>({goBack, tapOwnEntry, tapLeftList}));
        hand.plan.emplace_back(hand.random.pick<Step>({goBack, tapOwnEntry, look}));
    }
    return enterPane(hand, 85);
}

} // namespace

std::span<const Act> paneHandActs() {
    static const Act acts[] = {{"two fingers in Settings", weight, holdRows, kBootRarity},
                               {"come again in Settings", weight, comeAgain, kBootRarity * 2}};
    return acts;
}

} // namespace sim
