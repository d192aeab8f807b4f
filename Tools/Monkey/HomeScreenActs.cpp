#include "Acts.hpp"
#include "Tools/Live/LuaText.hpp"

namespace sim {

namespace {

template <int weight>
int always(const Hand &) {
    return weight;
}
int activatorWeight(const Hand &hand) { return hand.snapshot.panelOpen() ? 3 : 14; }
constexpr int kBootRarity = 6; // a boot costs as much as some hundred other events

std::string badge(Hand &hand) {
    const std::string &identifier = hand.random.pick(hand.applications);
    return luaCall("badge",
                   {identifier, hand.random.pick<int64_t>({0, 0, 1, 1, 2, 3, 9, 99, 999, 1000, 65536})});
}
std::string run(Hand &hand) { return luaCall("run", {hand.random.pick(hand.applications)}); }
std::string home(Hand &) { return "phone:home()"; }
std::string homeTwice(Hand &) { return "phone:home_twice()"; }
std::string rotate(Hand &hand) { return luaCall("rotate", {hand.random.pick<int64_t>({1, 1, 2, 3, 4})}); }
std::string reachability(Hand &hand) { return luaCall("reachability", {hand.random.percent(50)}); }
std::string activator(Hand &) { return "phone:activator()"; }
std::string voiceOver(Hand &hand) { return luaCall("aid", {"voiceover", hand.random.percent(60)}); }
std::string restyle(Hand &) { return "phone:restyle()"; }
std::string respring(Hand &) { return "phone:respring()"; }

std::string banner(Hand &hand) {
    return luaCall("banner",
                   {hand.random.pick({"Hello", "", "A long line that no banner can show as a whole, ever"})});
}

} // namespace

std::span<const Act> homeScreenActs() {
    static const Act acts[] = {{"badge", always<26>, badge},
                               {"bring an application to the front", always<7>, run},
                               {"home", always<5>, home},
                               {"home twice", always<3>, homeTwice},
                               {"rotate", always<6>, rotate},
                               {"Reachability", always<4>, reachability},
                               {"Activator", activatorWeight, activator},
                               {"banner", always<4>, banner},
                               {"VoiceOver", always<2>, voiceOver},
                               {"status bar anew", always<3>, restyle},
                               {"respring", always<1>, respring, kBootRarity}};
    return acts;
}

} // namespace sim
