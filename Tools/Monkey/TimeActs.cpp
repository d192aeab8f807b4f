#include "Acts.hpp"
#include "Tools/Live/Journal.hpp"

namespace sim {

namespace {

template <int weight>
int always(const Hand &) {
    return weight;
}

// Whole milliseconds, both ends included.
std::string wait(Hand &hand, int64_t first, int64_t last) {
    return "phone:wait(" + secondsText(hand.random.between(first, last) * 1'000'000) + ")";
}

std::string frame(Hand &) { return "phone:wait(0.016666667)"; }
std::string frames(Hand &hand) { return wait(hand, 0, 250); }
std::string animation(Hand &hand) { return wait(hand, 250, 1100); }
std::string seconds(Hand &hand) { return wait(hand, 1000, 6000); }
std::string minute(Hand &hand) { return wait(hand, 20'000, 90'000); }

} // namespace

std::span<const Act> timeActs() {
    static const Act acts[] = {{"wait a frame", always<60>, frame},
                               {"wait some frames", always<50>, frames},
                               {"wait for an animation", always<40>, animation},
                               {"wait seconds", always<6>, seconds},
                               {"wait a minute", always<1>, minute, 5}};
    return acts;
}

} // namespace sim
