// Passing the panel's lock, and being away before it has opened: what is entered takes a moment to count.
#include "Acts.hpp"
#include "SettingValues.hpp"
#include "Tools/Live/Journal.hpp"
#include "Tools/Live/LuaText.hpp"

#include <algorithm>

namespace sim {

namespace {

constexpr int64_t kFaceButton = -2; // tag: cancel on the keypad, unlock under the question

int codeWeight(const Hand &hand) {
    return hand.snapshot.key('1') && !hand.dark && !hand.fingers.contains(1) ? 16 : 0;
}
bool hasSensor(const Hand &hand) { return hand.phone.device().options().profile->touchSensor; }
int matchWeight(const Hand &hand) {
    return hasSensor(hand) && hand.snapshot.panelOpen() && !hand.dark && !hand.snapshot.key('1') ? 5 : 0;
}
int breakInWeight(const Hand &hand) { return hand.dark || !hand.fingers.empty() ? 0 : 3; }

// The one in the settings file, if its digits can be typed.
std::string rightCode(Hand &hand) {
    const std::string otherwise = hand.random.pick(codes());
    std::string problem;
    const Value settings = hand.phone.device().settings().read(&problem).value_or(Value());
    const Value &code = settings["password"];
    const bool typed = code.isString() && code.string().size() == otherwise.size() &&
                       code.string().find_first_not_of("0123456789") == std::string::npos;
    return typed ? code.string() : otherwise;
}

std::string typeRightCode(Hand &hand) {
    std::string line;
    for (char digit : rightCode(hand))
        if (const Place *key = hand.snapshot.key(digit))
            line += (line.empty() ? "" : " ") + ("phone:tap" + pointText(*key));
    return line;
}

std::string passQuestion(Hand &hand) {
    auto button = std::ranges::find(hand.snapshot.overlay, kFaceButton, &Place::tag);
    if (hand.snapshot.key('1') || button == hand.snapshot.overlay.end()) return "";
    return "phone:tap" + pointText(*button);
}

// By what the panel asks for.
std::string pass(Hand &hand) {
    if (hand.snapshot.key('1')) return typeRightCode(hand);
    return hasSensor(hand) ? "phone:finger(3)" : "";
}

void plan(Hand &hand, std::string line) {
    hand.plan.push_back([line = std::move(line)](Hand &) { return line; });
}

void planWait(Hand &hand, int64_t least, int64_t most) {
    plan(hand, "phone:wait(" + secondsText(hand.random.between(least, most) * 1'000'000) + ")");
}

// At once, or a little later.
void planPause(Hand &hand, int64_t most) {
    if (hand.random.percent(50)) planWait(hand, 0, most);
}

void planDark(Hand &hand) {
    plan(hand, hand.random.pick({"phone:display(false)", "phone:lock()"}));
    planPause(hand, 900);
    plan(hand, "phone:display(true)");
    if (hand.random.percent(70)) plan(hand, "phone:unlock()");
}

// Goes, while what was entered is perhaps still being judged, and comes back. In the dark the panel closes by
// itself.
void planLeaving(Hand &hand) {
    planPause(hand, 150);
    if (hand.random.percent(50)) {
        planDark(hand);
        planPause(hand, 600);
    } else {
        plan(hand, hand.random.pick({"phone:activator()", "phone:home()"}));
        planPause(hand, 300);
    }
    plan(hand, "phone:activator()");
    planPause(hand, 900);
}

std::string enterCode(Hand &hand) {
    if (hand.random.percent(70)) planLeaving(hand);
    return typeRightCode(hand);
}

std::string match(Hand &hand) {
    if (hand.random.percent(70)) planLeaving(hand);
    return "phone:finger(3)";
}

// The whole way from a lock that is set up to a panel that must still be locked. It is taken away again more
// often than not, for it keeps everything else from being reached.
std::string breakIn(Hand &hand) {
    const Object lock{{"pass", true},
                      {"password", hand.random.pick(codes())},
                      {"where", hand.random.pick({"everyoff", "every", "lockscreen"})},
                      {"touchid", hand.random.percent(50)},
                      {"ask", hand.random.percent(25)}};
    planDark(hand);
    plan(hand, "phone:activator()");
    planWait(hand, 500, 900);
    hand.plan.push_back(passQuestion);
    planWait(hand, 500, 900);
    hand.plan.push_back(pass);
    planLeaving(hand);
    if (hand.random.percent(60)) plan(hand, luaCall("set", {"pass", false}));
    return luaCall("set", {lock});
}

} // namespace

std::span<const Act> unlockActs() {
    static const Act acts[] = {{"enter the right code", codeWeight, enterCode},
                               {"match a finger", matchWeight, match},
                               {"break in", breakInWeight, breakIn}};
    return acts;
}

} // namespace sim
