// Two fingers at once, and fingers that stay down while other things happen.
#include "Acts.hpp"

#include <algorithm>
#include <iterator>

namespace sim {

namespace {

constexpr int kMostFingers = 5;

int pinchWeight(const Hand &hand) { return hand.fingers.empty() && !hand.dark ? 4 : 0; }
int downWeight(const Hand &hand) {
    return hand.dark || hand.fingers.size() == kMostFingers ? 0 : hand.fingers.empty() ? 8 : 4;
}
int moveWeight(const Hand &hand) { return hand.fingers.empty() ? 0 : 30; }
int upWeight(const Hand &hand) { return static_cast<int>(hand.fingers.size()) * 20; }

Place start(Hand &hand) {
    if (hand.snapshot.overlay.empty() || hand.random.percent(40)) return anywhere(hand);
    return hand.random.pick(hand.snapshot.overlay);
}

// No further than the screen goes.
Place moved(Hand &hand, Place place, int64_t most) {
    auto along = [&](double from, double length) {
        return std::clamp(from + static_cast<double>(hand.random.between(-most, most)), 0.0, length - 0.5);
    };
    place.x = along(place.x, hand.width);
    place.y = along(place.y, hand.height);
    return place;
}

std::string down(const Place &place, int finger) {
    return "phone:down(" + pointText(place) + ", " + std::to_string(finger) + ")";
}
std::string move(const Place &place, int finger) {
    return "phone:move(" + numberText(place.x) + ", " + numberText(place.y) + ", " + std::to_string(finger) +
           ")";
}
std::string up(int finger) { return "phone:up(" + std::to_string(finger) + ")"; }

// Both fingers move in three steps and lift.
std::string pinch(Hand &hand) {
    Place first = start(hand), second = moved(hand, first, 120);
    std::string line = down(first, 1) + " " + down(second, 2);
    for (int i = 0; i < 3; ++i) {
        first = moved(hand, first, 40);
        second = moved(hand, second, 40);
        line += " phone:wait(0.016666667) " + move(first, 1) + " " + move(second, 2);
    }
    return line + " " + up(2) + " " + up(1);
}

std::string putDown(Hand &hand) {
    int finger = 1;
    // The first finger is the one of taps and drags: it stays free more often than not.
    if (hand.random.percent(60)) ++finger;
    while (hand.fingers.contains(finger)) finger = finger % kMostFingers + 1;
    Place place = start(hand);
    hand.fingers[finger] = place;
    return down(place, finger);
}

int oneThatIsDown(Hand &hand) {
    return std::next(hand.fingers.begin(), static_cast<ptrdiff_t>(hand.random.below(hand.fingers.size())))
        ->first;
}

std::string moveOne(Hand &hand) {
    int finger = oneThatIsDown(hand);
    Place &place = hand.fingers[finger];
    place = moved(hand, place, 60);
    return move(place, finger);
}

std::string liftOne(Hand &hand) {
    int finger = oneThatIsDown(hand);
    hand.fingers.erase(finger);
    return up(finger);
}

} // namespace

std::span<const Act> fingerActs() {
    static const Act acts[] = {{"pinch", pinchWeight, pinch},
                               {"put a finger down", downWeight, putDown},
                               {"move a finger", moveWeight, moveOne},
                               {"lift a finger", upWeight, liftOne}};
    return acts;
}

} // namespace sim
