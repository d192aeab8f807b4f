// What other programs do to the settings file.
#include "Acts.hpp"
#include "SettingList.hpp"
#include "SettingValues.hpp"
#include "Tools/Live/LuaText.hpp"

namespace sim {

namespace {

template <int weight>
int always(const Hand &) {
    return weight;
}
// Switched off, the extension does nothing worth watching.
int wholeWeight(const Hand &hand) { return hand.enabled ? 2 : 50; }

std::string set(const std::string &key, const Value &value) { return luaCall("set", {key, value}); }

std::string legal(Hand &hand) {
    std::string key = anyKey(hand.random, hand.applications);
    return set(key, legalValue(hand.random, key));
}
std::string illegal(Hand &hand) {
    std::string key = anyKey(hand.random, hand.applications);
    return set(key, illegalValue(hand.random));
}
std::string remove(Hand &) { return "phone:delete_settings()"; }
std::string breakFile(Hand &hand) { return luaCall("settings_text", {brokenFile(hand.random)}); }
std::string whole(Hand &hand) {
    Object settings = legalSettings(hand.random, hand.applications);
    settings.insert_or_assign(keyNamed("enabled"), true);
    return "phone:delete_settings() " + luaCall("set", {settings});
}

} // namespace

std::span<const Act> settingsActs() {
    static const Act acts[] = {{"set", always<18>, legal},
                               {"set to nonsense", always<6>, illegal},
                               {"remove the settings file", always<1>, remove},
                               {"break the settings file", always<1>, breakFile},
                               {"write the settings file anew", wholeWeight, whole}};
    return acts;
}

} // namespace sim
