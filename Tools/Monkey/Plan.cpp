#include "Plan.hpp"

#include "Tools/Live/Journal.hpp"

namespace sim {

void plan(Hand &hand, std::string line) {
    hand.plan.push_back([line = std::move(line)](Hand &) { return line; });
}

void planWait(Hand &hand, int64_t least, int64_t most) {
    plan(hand, "phone:wait(" + secondsText(hand.random.between(least, most) * 1'000'000) + ")");
}

void planPause(Hand &hand, int64_t most) {
    if (hand.random.percent(50)) planWait(hand, 0, most);
}

void planDark(Hand &hand) {
    plan(hand, hand.random.pick({"phone:display(false)", "phone:lock()"}));
    planPause(hand, 900);
    plan(hand, "phone:display(true)");
    if (hand.random.percent(70)) plan(hand, "phone:unlock()");
}

} // namespace sim
