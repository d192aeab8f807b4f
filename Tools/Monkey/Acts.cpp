#include "Acts.hpp"

namespace sim {

namespace {

const std::vector<Act> &allActs() {
    static const std::vector<Act> acts = [] {
        std::vector<Act> result;
        for (auto family :
             {timeActs(), touchActs(), fingerActs(), homeScreenActs(), lockActs(), unlockActs(),
              settingsActs(), paneActs(), paneTourActs(), holdActs(), paneHandActs(), examActs()})
            result.insert(result.end(), family.begin(), family.end());
        return result;
    }();
    return acts;
}

int share(const Act &act, const Hand &hand) {
    constexpr int kParts = 1000;
    return act.weight(hand) * kParts / act.rarity;
}

} // namespace

Event chooseEvent(Hand &hand) {
    hand.refresh();
    while (!hand.plan.empty()) {
        auto step = std::move(hand.plan.front());
        hand.plan.pop_front();
        if (std::string line = step(hand); !line.empty()) return {"what was planned", std::move(line)};
    }
    int sum = 0;
    for (const auto &act : allActs()) sum += share(act, hand);
    auto place = static_cast<int>(hand.random.below(static_cast<uint64_t>(sum)));
    for (const auto &act : allActs()) {
        place -= share(act, hand);
        if (place < 0) return {act.name, act.line(hand)};
    }
    return {};
}

std::vector<std::string> actNames() {
    std::vector<std::string> names;
    for (const auto &act : allActs()) names.emplace_back(act.name);
    return names;
}

} // namespace sim
