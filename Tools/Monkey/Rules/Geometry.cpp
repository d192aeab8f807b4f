// The overlay's views have places that can be, and at rest the panel is on the screen and its items are
// apart.
#include "Names.hpp"
#include "Rules.hpp"

#include <algorithm>

namespace sim {

namespace {

constexpr double kTolerance = 0.5; // points

std::string placeText(const Area &area) {
    std::string text;
    for (double number : {area.x, area.y, area.w, area.h}) {
        text += (text.empty() ? "" : ", ") + std::to_string(number);
        text.erase(text.find_last_not_of('0') + 1);
        if (text.ends_with('.')) text.pop_back();
    }
    return "(" + text + ")";
}

void checkNumbers(const SeenWindow &window, Findings &findings) {
    auto broken = std::ranges::find(window.views, false, &SeenView::finite);
    if (broken != window.views.end())
        findings.push_back("a " + broken->type + " with tag " + std::to_string(broken->tag) +
                           " has a place or an alpha that is no number");
}

bool isMoving(const SeenWindow &window) { return std::ranges::any_of(window.views, &SeenView::moving); }

void checkPanel(const Moment &moment, const SeenView &panel, Findings &findings) {
    const Area &area = panel.onScreen;
    bool inside = area.x >= -kTolerance && area.y >= -kTolerance &&
                  area.x + area.w <= moment.now.screenWidth + kTolerance &&
                  area.y + area.h <= moment.now.screenHeight + kTolerance;
    if (!inside) findings.push_back("the panel lies at " + placeText(area) + ", off the screen");
    if (area.w <= 1 || area.h <= 1) findings.push_back("the panel has the size of " + placeText(area));
}

// A panel that changes its height asks the settings of that moment which edge stays. Where they were others
// when it was placed, it may grow off the screen.
bool isAnchoredAnew(const Moment &moment) {
    auto differs = [&](const char *key) { return !(moment.settingsBefore[key] == moment.settings[key]); };
    return differs("rech") || differs("position");
}

void checkItems(const SeenWindow &window, size_t strip, Findings &findings) {
    std::vector<Area> places;
    for (size_t item : window.childrenOf(strip)) {
        if (window.views[item].name.empty()) continue;
        const Area &area = window.views[item].frame;
        if (std::ranges::find(places, area) != places.end())
            findings.push_back("two items lie at " + placeText(area));
        places.push_back(area);
    }
}

// The panel stays where it hangs: it follows an indicator that moves, at the follower's next tick, and one
// that has gone leaves it where it was.
bool isInPlace(const Moment &moment, Memory &memory, const SeenWindow &window) {
    constexpr int64_t kFollowed = 300'000'000;
    // A finger that holds a scroll view keeps the follower's timer from firing.
    if (!memory.shown || isMoving(window) || !memory.scene.fingers.empty()) {
        memory.restingSince.reset();
    } else if (!memory.restingSince) {
        memory.restingSince = moment.to;
    }
    if (!memory.shown) memory.adrift = false;
    if (memory.shown && (!moment.now.itemVisible || isAnchoredAnew(moment))) memory.adrift = true;
    return memory.restingSince && moment.to - *memory.restingSince >= kFollowed && !memory.adrift;
}

} // namespace

void checkGeometry(const Moment &moment, Memory &memory, Findings &findings) {
    for (const auto &window : moment.now.overlays) {
        checkNumbers(window, findings);
        bool inPlace = isInPlace(moment, memory, window);
        if (!memory.restingSince || !moment.now.display) continue;
        for (size_t i = 0; i < window.views.size(); ++i) {
            if (window.views[i].type == names::strip) checkItems(window, i, findings);
            if (inPlace && window.views[i].depth == 1 && window.views[i].tag == names::panel)
                checkPanel(moment, window.views[i], findings);
        }
    }
}

} // namespace sim
