#include "Acts.hpp"
#include "Tools/Live/LuaText.hpp"

namespace sim {

namespace {

int offWeight(const Hand &hand) { return hand.dark ? 1 : 4; }
int onWeight(const Hand &hand) { return hand.dark ? 70 : 1; }
int lockWeight(const Hand &hand) { return hand.dark ? 20 : 3; }
int unlockWeight(const Hand &hand) { return hand.dark ? 1 : hand.locked ? 24 : 7; }
int fingerWeight(const Hand &hand) { return hand.snapshot.panelOpen() ? 10 : 3; }

std::string off(Hand &) { return "phone:display(false)"; }
std::string on(Hand &) { return "phone:display(true)"; }
std::string lock(Hand &) { return "phone:lock()"; }
std::string unlock(Hand &) { return "phone:unlock()"; }

// Everything that the sensor says, a finger that matches (3) more often, and codes that it never says.
std::string finger(Hand &hand) {
    int64_t code = hand.random.percent(30) ? 3 : hand.random.between(0, 12);
    if (hand.random.percent(3)) code = INT32_MAX;
    return luaCall("finger", {code});
}

} // namespace

std::span<const Act> lockActs() {
    static const Act acts[] = {{"display off", offWeight, off},
                               {"display on", onWeight, on},
                               {"lock button", lockWeight, lock},
                               {"unlock", unlockWeight, unlock},
                               {"finger on the sensor", fingerWeight, finger}};
    return acts;
}

} // namespace sim
