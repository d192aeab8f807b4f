// A finger that stays on something in the panel while the panel changes under it, and is lifted afterwards:
// on an item, a key, a button, an answer, a close mark, whatever is shown.
#include "Acts.hpp"
#include "Plan.hpp"
#include "SettingList.hpp"
#include "SettingValues.hpp"
#include "Tools/Live/LuaText.hpp"
#include "Tools/Monkey/Rules/Names.hpp"

#include <algorithm>

namespace sim {

namespace {

constexpr int kHeld = 2; // the first finger is the one of taps

bool free(const Hand &hand) { return hand.fingers.empty() && !hand.dark; }
int openWeight(const Hand &hand) { return free(hand) && hand.snapshot.panelOpen() ? 5 : 0; }
int behindLockWeight(const Hand &hand) { return free(hand) && !hand.snapshot.statusBar.empty() ? 4 : 0; }

// What lies in the panel, by kind: one of ten items is as likely to be touched as the only button. The first
// view is what lies under all of it.
std::vector<std::vector<Place>> kindsOf(const Snapshot &snapshot) {
    std::map<int64_t, std::vector<Place>> kinds;
    const bool keys = snapshot.key('1');
    for (size_t i = 1; i < snapshot.overlay.size(); ++i) {
        const Place &place = snapshot.overlay[i];
        kinds[keys && names::isKey(place.tag) ? names::keyStep : place.tag].push_back(place);
    }
    std::vector<std::vector<Place>> result;
    for (auto &[tag, places] : kinds) result.push_back(std::move(places));
    return result;
}

Place something(Hand &hand) {
    const auto kinds = kindsOf(hand.snapshot);
    return kinds.empty() ? anywhere(hand) : hand.random.pick(hand.random.pick(kinds));
}

std::string tap(const Place &place) { return "phone:tap" + pointText(place); }
std::string text(int finger) { return std::to_string(finger); }

std::string putDown(Hand &hand) {
    const Place place = something(hand);
    hand.fingers[kHeld] = place;
    return "phone:down(" + pointText(place) + ", " + text(kHeld) + ")";
}

// A hand that is held out trembles.
std::string tremble(Hand &hand) {
    auto found = hand.fingers.find(kHeld);
    if (found == hand.fingers.end()) return "";
    Place &place = found->second;
    place.x = std::clamp(place.x + static_cast<double>(hand.random.between(-4, 4)), 0.0, hand.width - 1);
    place.y = std::clamp(place.y + static_cast<double>(hand.random.between(-4, 4)), 0.0, hand.height - 1);
    return "phone:move(" + numberText(place.x) + ", " + numberText(place.y) + ", " + text(kHeld) + ")";
}

std::string lift(Hand &hand) {
    return hand.fingers.erase(kHeld) ? "phone:up(" + text(kHeld) + ")" : std::string();
}

std::string tapAnother(Hand &hand) { return tap(something(hand)); }
std::string tapOutside(Hand &hand) { return tap({20, hand.height - 30, 0}); }
std::string tapIndicator(Hand &hand) {
    return hand.snapshot.statusBar.empty() ? "" : tap(hand.random.pick(hand.snapshot.statusBar));
}
std::string openAgain(Hand &hand) {
    if (hand.snapshot.panelOpen()) return "";
    return hand.random.percent(70) ? "phone:activator()" : tapIndicator(hand);
}
std::string changeSetting(Hand &hand) {
    const std::string key = anyKey(hand.random, hand.applications);
    return luaCall("set", {key, legalValue(hand.random, key)});
}
std::string turn(Hand &hand) { return luaCall("rotate", {hand.random.pick<int64_t>({1, 2, 3, 4})}); }
std::string notify(Hand &hand) {
    const std::string application = hand.random.pick(hand.applications);
    return luaCall("badge", {application, hand.random.between(0, 3)});
}

void planReopening(Hand &hand) {
    switch (hand.random.below(6)) {
    case 0:
    case 1:
        planDark(hand);
        break;
    case 2:
        hand.plan.emplace_back(tapOutside);
        break;
    default:
        plan(hand, hand.random.pick({"phone:activator()", "phone:home()", "phone:banner(\"Hello\")"}));
    }
    if (hand.random.percent(40)) {
        planPause(hand, 300);
    } else {
        planWait(hand, 300, 1500);
    }
    hand.plan.emplace_back(openAgain);
}

// `reopened`: so often in a hundred the panel itself comes and goes, and not something about it.
void planHolding(Hand &hand, unsigned reopened) {
    hand.plan.emplace_back(putDown);
    planPause(hand, 400);
    for (uint64_t i = hand.random.below(2) + 1; i > 0; --i) {
        if (hand.random.percent(reopened)) {
            planReopening(hand);
        } else {
            hand.plan.emplace_back(hand.random.pick<Step>({tapAnother, changeSetting, turn, notify}));
        }
        planPause(hand, 900);
    }
    if (hand.random.percent(70)) planWait(hand, 1000, 2500);
    if (hand.random.percent(25)) hand.plan.emplace_back(tremble);
    hand.plan.emplace_back(lift);
    planWait(hand, 0, 1500);
}

// What a long touch brings up, marks or a question, is there to be held as well.
std::string press(Hand &hand) {
    const std::vector<Place> items = hand.snapshot.items();
    return items.empty() ? "" : "phone:hold(" + pointText(hand.random.pick(items)) + ", 1.2)";
}

void planPressing(Hand &hand) {
    if (hand.random.percent(30)) return;
    for (uint64_t i = hand.random.below(2) + 1; i > 0; --i) hand.plan.emplace_back(press);
    planWait(hand, 500, 900);
}

std::string holdAcross(Hand &hand) {
    planPressing(hand);
    planHolding(hand, 60);
    return "phone:wait(" + numberText(hand.random.pick({0.0, 0.3, 0.8})) + ")";
}

// With a lock that has been passed, which is taken away again.
std::string holdBehindLock(Hand &hand) {
    const Object lock = lockToSet(hand);
    if (hand.random.percent(40)) planDark(hand);
    hand.plan.emplace_back(openAgain);
    planWait(hand, 600, 900);
    hand.plan.emplace_back(passQuestion);
    planWait(hand, 500, 800);
    hand.plan.emplace_back(passLock);
    planWait(hand, 900, 1300);
    planPressing(hand);
    planHolding(hand, 90);
    if (hand.random.percent(80)) plan(hand, luaCall("set", {"pass", false}));
    return luaCall("set", {lock});
}

} // namespace

std::span<const Act> holdActs() {
    static const Act acts[] = {{"hold across a change", openWeight, holdAcross},
                               {"hold behind a lock", behindLockWeight, holdBehindLock}};
    return acts;
}

} // namespace sim
