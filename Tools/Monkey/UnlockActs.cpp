// Passing the panel's lock, and being away before it has opened: what is entered takes a moment to count.
#include "Acts.hpp"
#include "Plan.hpp"
#include "SettingValues.hpp"
#include "Tools/Live/Journal.hpp"
#include "Tools/Live/LuaText.hpp"

#include <algorithm>

namespace sim {

namespace {

// Tags: cancel on the keypad and unlock under the question; the way from the Touch ID face to the keypad,
// which is the tag of the panel itself as well.
constexpr int64_t kFaceButton = -2, kPasscodeButton = 3;

int codeWeight(const Hand &hand) {
    return hand.snapshot.key('1') && !hand.dark && !hand.fingers.contains(1) ? 16 : 0;
}
bool hasSensor(const Hand &hand) { return hand.phone.device().options().profile->touchSensor; }
int matchWeight(const Hand &hand) {
    return hasSensor(hand) && hand.snapshot.panelOpen() && !hand.dark && !hand.snapshot.key('1') ? 5 : 0;
}
int breakInWeight(const Hand &hand) { return hand.dark || !hand.fingers.empty() ? 0 : 4; }

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

std::string tap(const Place &place) { return "phone:tap" + pointText(place); }

std::string typed(const Hand &hand, const std::string &code) {
    std::string line;
    for (char digit : code)
        if (const Place *key = hand.snapshot.key(digit)) line += (line.empty() ? "" : " ") + tap(*key);
    return line;
}

std::string typeRightCode(Hand &hand) { return typed(hand, rightCode(hand)); }

// The last of that tag, which is the one inside the others.
const Place *button(const Hand &hand, int64_t tag) {
    const auto &places = hand.snapshot.overlay;
    auto found =
        std::find_if(places.rbegin(), places.rend(), [=](const Place &place) { return place.tag == tag; });
    return found == places.rend() ? nullptr : &*found;
}

// A code with a slip: the last thing typed before it is taken back, or one digit is wrong at first.
std::string typeWithSlip(Hand &hand) {
    std::string code = rightCode(hand);
    const char slip = static_cast<char>('0' + hand.random.below(10));
    const Place *back = button(hand, kFaceButton);
    if (back && hand.random.percent(50))
        return typed(hand, std::string(1, slip)) + " " + tap(*back) + " " + typed(hand, code);
    code[hand.random.below(code.size())] = slip;
    hand.plan.emplace_front(typeRightCode);
    hand.plan.emplace_front([](Hand &) { return "phone:wait(0.9)"; });
    return typed(hand, code);
}

std::string matchNow(Hand &hand) {
    return hasSensor(hand) && hand.random.percent(20) ? "phone:finger(3)" : "";
}

// A finger does not count afterwards.
std::string choosePasscode(Hand &hand) {
    const Place *passcode = button(hand, kPasscodeButton);
    if (!passcode || hand.snapshot.key('1') || hand.random.percent(50)) return "";
    if (hasSensor(hand)) hand.plan.emplace_front([](Hand &) { return "phone:finger(3)"; });
    const int64_t milliseconds = hand.random.between(0, 900);
    hand.plan.emplace_front(
        [=](Hand &) { return "phone:wait(" + secondsText(milliseconds * 1'000'000) + ")"; });
    return tap(*passcode);
}

// Goes, while what was entered is perhaps still being judged, and comes back. In the dark the panel closes by
// itself.
void planLeaving(Hand &hand) {
    if (hand.random.percent(30)) {
        planWait(hand, 400, 1500);
    } else {
        planPause(hand, 150);
    }
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
    const Object lock = lockToSet(hand);
    planDark(hand);
    plan(hand, "phone:activator()");
    planWait(hand, 600, 900);
    for (auto step : {matchNow, passQuestion, choosePasscode}) {
        hand.plan.emplace_back(step);
        if (step != matchNow) planWait(hand, 50, 900);
    }
    hand.plan.emplace_back(passLock);
    planLeaving(hand);
    if (hand.random.percent(60)) plan(hand, luaCall("set", {"pass", false}));
    return luaCall("set", {lock});
}

} // namespace

// Braces keep the order of the draws.
Object lockToSet(Hand &hand) {
    return {{"pass", true},
            {"password", hand.random.pick(codes())},
            {"where", hand.random.pick({"everyoff", "everyoff", "every", "every", "lockscreen"})},
            {"touchid", hand.random.percent(50)},
            {"ask", hand.random.percent(25)}};
}

std::string passLock(Hand &hand) {
    if (hand.snapshot.key('1')) return hand.random.percent(60) ? typeRightCode(hand) : typeWithSlip(hand);
    return hasSensor(hand) ? "phone:finger(3)" : "";
}

std::string passQuestion(Hand &hand) {
    const Place *unlock = button(hand, kFaceButton);
    return unlock && !hand.snapshot.key('1') ? tap(*unlock) : "";
}

std::span<const Act> unlockActs() {
    static const Act acts[] = {{"enter the right code", codeWeight, enterCode},
                               {"match a finger", matchWeight, match},
                               {"break in", breakInWeight, breakIn}};
    return acts;
}

} // namespace sim
