// What one finger does and is done with.
#include "Acts.hpp"
#include "SettingValues.hpp"

namespace sim {

namespace {

bool fingerFree(const Hand &hand) { return !hand.fingers.contains(1); }
// On a dark screen and under the lock screen there is little to touch.
int reachable(const Hand &hand, int weight) { return fingerFree(hand) ? weight : 0; }

int anywhereWeight(const Hand &hand) { return reachable(hand, hand.dark ? 2 : 8); }
int slideWeight(const Hand &hand) { return reachable(hand, hand.dark ? 1 : 5); }
int placeWeight(const Hand &hand, int weight) {
    return hand.snapshot.panelOpen() && !hand.dark ? reachable(hand, weight) : 0;
}
int tapPlaceWeight(const Hand &hand) { return placeWeight(hand, 40); }
int slidePlaceWeight(const Hand &hand) { return placeWeight(hand, 14); }
int holdPlaceWeight(const Hand &hand) { return placeWeight(hand, 8); }
int codeWeight(const Hand &hand) { return hand.snapshot.key('1') ? placeWeight(hand, 14) : 0; }
int itemWeight(const Hand &hand) {
    if (hand.snapshot.statusBar.empty() || hand.dark) return 0;
    return reachable(hand, hand.snapshot.panelOpen() ? 4 : 60);
}

// Somewhere near the middle of one of the places.
Place near(Hand &hand, const std::vector<Place> &places) {
    Place place = hand.random.pick(places);
    if (hand.random.percent(70)) return place;
    place.x += static_cast<double>(hand.random.between(-12, 12));
    place.y += static_cast<double>(hand.random.between(-12, 12));
    return place;
}

std::string tap(const Place &place) { return "phone:tap" + pointText(place); }

std::string hold(Hand &hand, const Place &place) {
    double seconds = hand.random.pick({0.05, 0.11, 0.2, 0.4, 0.6, 1.2});
    return "phone:hold(" + pointText(place) + ", " + numberText(seconds) + ")";
}

// Along an axis, slanted, or hardly at all.
std::string slide(Hand &hand, const Place &place) {
    auto way = [&] { return static_cast<double>(hand.random.between(-200, 200)); };
    double dx = 0, dy = 0;
    switch (hand.random.below(5)) {
    case 0:
        dx = way();
        break;
    case 1:
        dy = way();
        break;
    case 2:
        dx = way(), dy = way();
        break;
    case 3:
        dy = way() / 2;
        break;
    default:
        dx = way() / 16, dy = way() / 16;
    }
    double seconds = hand.random.pick({0.0, 0.05, 0.1, 0.15, 0.3, 0.5});
    return std::string(hand.random.percent(50) ? "phone:drag(" : "phone:fling(") + pointText(place) + ", " +
           numberText(dx) + ", " + numberText(dy) + ", " + numberText(seconds) + ")";
}

std::string tapAnywhere(Hand &hand) { return tap(anywhere(hand)); }
std::string tapTwice(Hand &hand) {
    std::string once =
        tap(hand.snapshot.overlay.empty() || hand.random.percent(40) ? anywhere(hand)
                                                                     : near(hand, hand.snapshot.overlay));
    return once + " phone:wait(" + numberText(hand.random.pick({0.0, 0.05, 0.2})) + ") " + once;
}
std::string holdAnywhere(Hand &hand) { return hold(hand, anywhere(hand)); }
std::string slideAnywhere(Hand &hand) { return slide(hand, anywhere(hand)); }

std::string tapPlace(Hand &hand) { return tap(near(hand, hand.snapshot.overlay)); }
std::string holdPlace(Hand &hand) { return hold(hand, near(hand, hand.snapshot.overlay)); }
std::string slidePlace(Hand &hand) { return slide(hand, near(hand, hand.snapshot.overlay)); }
std::string tapItem(Hand &hand) { return tap(near(hand, hand.snapshot.statusBar)); }

// A whole code on the keypad, which random taps would not come upon.
std::string typeCode(Hand &hand) {
    std::string line;
    for (char digit : hand.random.pick(codes()))
        if (const Place *key = hand.snapshot.key(digit)) line += (line.empty() ? "" : " ") + tap(*key);
    return line;
}

} // namespace

std::span<const Act> touchActs() {
    static const Act acts[] = {{"tap anywhere", anywhereWeight, tapAnywhere},
                               {"tap twice", slideWeight, tapTwice},
                               {"hold anywhere", slideWeight, holdAnywhere},
                               {"slide anywhere", anywhereWeight, slideAnywhere},
                               {"tap in the overlay", tapPlaceWeight, tapPlace},
                               {"hold in the overlay", holdPlaceWeight, holdPlace},
                               {"slide in the overlay", slidePlaceWeight, slidePlace},
                               {"tap in the status bar", itemWeight, tapItem},
                               {"type a code", codeWeight, typeCode}};
    return acts;
}

} // namespace sim
