// Single acts from rest, each with the time that its consequences take: what the rule of the consequences
// judges.
#include "Acts.hpp"

namespace sim {

namespace {

// A second and a half: a drag's end, an item's going and the closing up, slowly.
constexpr const char *kWait = " phone:wait(1.5)";

bool quiet(const Hand &hand) { return hand.fingers.empty() && !hand.dark; }
int openWeight(const Hand &hand) {
    return quiet(hand) && !hand.snapshot.panelOpen() && !hand.snapshot.statusBar.empty() ? 40 : 0;
}
int restWeight(const Hand &hand) { return quiet(hand) && hand.snapshot.panelOpen() ? 30 : 0; }
int actWeight(const Hand &hand) { return quiet(hand) && hand.snapshot.panelOpen() ? 100 : 0; }

std::string open(Hand &hand) {
    return "phone:tap" + pointText(hand.random.pick(hand.snapshot.statusBar)) + kWait;
}
std::string rest(Hand &) { return std::string("phone:wait(0.5)") + kWait; }

// Where an application stands on the panel, more often than not: what else is there is met often enough.
Place somewhere(Hand &hand) {
    if (hand.random.percent(12)) return anywhere(hand);
    const std::vector<Place> items = hand.snapshot.items();
    if (!items.empty() && hand.random.percent(70)) return hand.random.pick(items);
    return hand.random.pick(hand.snapshot.overlay);
}

std::string act(Hand &hand) {
    const Place place = somewhere(hand);
    switch (hand.random.below(9)) {
    case 0:
        return std::string(
                   hand.random.pick({"phone:home()", "phone:banner(\"Hello\")", "phone:activator()"})) +
               kWait;
    case 1:
    case 2:
    case 3:
        return "phone:hold(" + pointText(place) + ", 1.2)" + kWait;
    case 4:
    case 5:
        return "phone:drag(" + pointText(place) + ", 0, " +
               numberText(hand.random.pick<double>({-150, -90, -20, 20, 60, 90, 150})) + ", 0.3)" + kWait;
    case 6:
        return hand.phone.device().options().profile->touchSensor ? std::string("phone:finger(3)") + kWait
                                                                  : "phone:tap" + pointText(place) + kWait;
    default:
        return "phone:tap" + pointText(place) + kWait;
    }
}

} // namespace

std::span<const Act> examActs() {
    static const Act acts[] = {{"open and look", openWeight, open, 3},
                               {"let it rest", restWeight, rest},
                               {"one act from rest", actWeight, act}};
    return acts;
}

} // namespace sim
