// Single acts from rest, each with the time that its consequences take: what the rule of the consequences judges.
#include "Acts.hpp"

namespace sim {

namespace {

// A second and a half: a drag's end, an item's going and the closing up, slowly.
constexpr const char *kWait = " phone:wait(1.5)";

bool quiet(const Hand &hand) { return hand.fingers.empty() && !hand.dark; }
int openWeight(const Hand &hand) {
    return quiet(hand) && !hand.snapshot.panelOpen() && !hand.snapshot.statusBar.empty() ? 40 : 0;
}
int restWeight(const Hand &hand) { return quiet(hand) && hand.snapshot.panelOpen() ? 14 : 0; }
int actWeight(const Hand &hand) { return quiet(hand) && hand.snapshot.panelOpen() ? 60 : 0; }

std::string open(Hand &hand) { return "phone:tap" + pointText(hand.random.pick(hand.snapshot.statusBar)) + kWait; }
std::string rest(Hand &) { return std::string("phone:wait(0.5)") + kWait; }

std::string act(Hand &hand) {
    const Place place = hand.random.percent(15) ? anywhere(hand) : hand.random.pick(hand.snapshot.overlay);
    switch (hand.random.below(8)) {
    case 0:
        return std::string(hand.random.pick({"phone:home()", "phone:banner(\"Hello\")", "phone:activator()"})) + kWait;
    case 1:
    case 2:
        return "phone:hold(" + pointText(place) + ", 1.2)" + kWait;
    case 3:
    case 4:
    case 5:
        return "phone:drag(" + pointText(place) + ", 0, " +
               numberText(hand.random.pick<double>({-150, -90, -20, 20, 60, 90, 150})) + ", 0.3)" + kWait;
    default:
        return "phone:tap" + pointText(place) + kWait;
    }
}

} // namespace

std::span<const Act> examActs() {
    static const Act acts[] = {{"open and look", openWeight, open, 3},
                               {"let it rest", restWeight, rest},
                               {"one act from rest", actWeight, act, 2}};
    return acts;
}

} // namespace sim
