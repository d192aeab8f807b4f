// Every rule is real: it fires when the home screen is broken in just that way, and is silent when it is not.
#include "Sabotage.hpp"

namespace {

using namespace sabotage;
using sim::Object;

// Three badges, and the panel open from 1.1 s to 4.1 s.
const Scene &panel() {
    static const Scene scene{{"phone:badge(\"com.apple.mobilemail\", 3)",
                              "phone:badge(\"com.apple.MobileSMS\", 1)", "phone:wait(1)", "phone:activator()",
                              "phone:wait(1)", "phone:wait(0.5)", "phone:wait(0.5)", "phone:wait(0.5)",
                              "phone:wait(0.5)", "phone:activator()", "phone:wait(1)", "phone:wait(1)",
                              "phone:wait(1)"},
                             {{"enable", true}, {"where", "everyoff"}},
                             2.7};
    return scene;
}

// The same, locked with a code.
const Scene &lockedPanel() {
    static const Scene scene = [] {
        Scene locked = panel();
        locked.settings = {{"enable", true}, {"pass", true}, {"password", "1234"}};
        return locked;
    }();
    return scene;
}

// Locked as well, asking first, and without an application to list: the list's words stand on the face too.
const Scene &emptyLockedPanel() {
    static const Scene scene{{"phone:wait(1)", "phone:activator()", "phone:wait(1)", "phone:wait(1)"},
                             {{"enable", true}, {"pass", true}, {"password", "1234"}, {"ask", true}},
                             2.7};
    return scene;
}

// Locked with a code and a finger, which matches at 3 s; then `after`.
Scene fingerScene(const Script &after) {
    Script script{"phone:display(false)", "phone:wait(1)",     "phone:display(true)", "phone:unlock()",
                  "phone:wait(1)",        "phone:activator()", "phone:wait(1)",       "phone:finger(3)"};
    script.insert(script.end(), after.begin(), after.end());
    return {
        script,
        {{"enable", true}, {"pass", true}, {"password", "1234"}, {"touchid", true}, {"where", "everyoff"}},
        2.7};
}

// The panel closes before the glyph has shown the match: the next opening is unlocked.
const Scene &lateFinger() {
    static const Scene scene = fingerScene(
        {"phone:activator()", "phone:wait(1)", "phone:wait(1)", "phone:activator()", "phone:wait(1)"});
    return scene;
}

// Unlocked, and the display turned off and on while the face still makes room for the list.
const Scene &darkUnlocking() {
    static const Scene scene =
        fingerScene({"phone:wait(0.6)", "phone:lock()", "phone:lock()", "phone:wait(0.1)", "phone:wait(1)"});
    return scene;
}

// Keys of the keypad on the device that is booted without a choice.
Script typed(const std::string &digits) {
    Script taps;
    for (char digit : digits) {
        if (digit == '<') {
            taps.push_back("phone:tap{112, 440}");
            continue;
        }
        const int key = digit == '0' ? 10 : digit - '1';
        taps.push_back("phone:tap{" + std::to_string(97 + key % 3 * 90) + ", " +
                       std::to_string(137 + key / 3 * 78) + "}");
    }
    return taps;
}

Script joined(std::initializer_list<Script> parts) {
    Script whole;
    for (const Script &part : parts) whole.insert(whole.end(), part.begin(), part.end());
    return whole;
}

const Script kDark = {"phone:display(false)", "phone:wait(0.5)", "phone:display(true)", "phone:unlock()",
                      "phone:wait(0.5)"};
const Script kOpen = {"phone:activator()", "phone:wait(1)"};

Object locked(const char *where) {
    return {{"enable", true}, {"pass", true}, {"password", "1234"}, {"where", where}};
}

// The right code at 2.4 s, and at once the dark: the next panel is locked.
const Scene &darkAfterCode() {
    static const Scene scene{joined({kDark, kOpen, typed("1234"), kDark, kOpen}), locked("everyoff"), 2.7};
    return scene;
}

// The right code at 2 s, and at once another panel, which is locked.
const Scene &anotherAfterCode() {
    static const Scene scene{
        joined({kOpen,
                {"phone:wait(0.6)"},
                typed("1234"),
                {"phone:activator()", "phone:activator()", "phone:wait(0.1)", "phone:wait(1)"}}),
        locked("every"), 2.05};
    return scene;
}

// A wrong code at 1.4 s, and one that would be right but for what was taken back.
const Scene &wrongCode() {
    static const Scene scene{joined({kOpen, typed("1235"), {"phone:wait(1)"}, typed("12<34"), kOpen}),
                             locked("every"), 1.6};
    return scene;
}

// The question, and the keypad in place of the finger: one that matches does not count on either.
const Scene &uselessFinger() {
    static const Scene scene = [] {
        Scene made{joined({kOpen,
                           {"phone:finger(3)", "phone:wait(1)", "phone:tap{187, 102}", "phone:wait(1)",
                            "phone:tap{262, 187}", "phone:wait(1)", "phone:finger(3)", "phone:wait(1)"}}),
                   locked("every"), 4.6};
        made.settings.insert({{"touchid", true}, {"ask", true}});
        return made;
    }();
    return scene;
}

// Right after all: with a slip and its deletion, after a wrong code, and after the panel was closed on the
// way. What was unlocked stays so.
const Scene &rightCode() {
    static const Scene scene{joined({kDark,
                                     kOpen,
                                     typed("9<1235"),
                                     {"phone:wait(1)"},
                                     typed("123"),
                                     kOpen,
                                     kOpen,
                                     typed("12<234"),
                                     {"phone:wait(1)"},
                                     kOpen,
                                     kOpen}),
                             locked("everyoff"), 8.3};
    return scene;
}

// Chosen on the lock screen, an application opens when that goes: by then another panel stands there, locked.
const Scene &chosenOnLockScreen() {
    static const Scene scene{
        {"phone:badge(\"com.apple.mobiletimer\", 3)", "phone:display(false)", "phone:home() phone:wait(1.5)",
         "phone:activator() phone:wait(1.5)", "phone:tap{97, 80} phone:wait(1)",
         "phone:set{pass = true, password = \"1234\", where = \"every\"}", "phone:wait(1)",
         "phone:activator()", "phone:wait(1.5)", "phone:unlock()", "phone:wait(1)"},
        {{"enable", true}},
        0};
    return scene;
}

// The file says, while the panel stands below the status bar with Reachability, that it does not come along:
// when the question makes it higher its lower edge stays.
const Scene &anchoredAnew() {
    static const Scene scene{{"phone:badge(\"com.apple.mobilemail\", 3)", "phone:reachability(true)",
                              "phone:wait(1)", "phone:activator()", "phone:wait(1)",
                              "phone:set(\"rech\", nil)", "phone:hold({97, 80}, 1.2)", "phone:wait(1)"},
                             {{"enable", true}, {"position", "top"}, {"rech", true}, {"where", "everyoff"}},
                             2.7};
    return scene;
}

// The panel has been open and is closed again.
const Scene &closedPanel() {
    static const Scene scene = [] {
        Scene closed = panel();
        closed.at = 6.5;
        return closed;
    }();
    return scene;
}

// The buttons, a banner and the display, with the panel out of the way and in it.
const Scene &buttons() {
    static const Scene scene{{"phone:wait(1)", "phone:home()", "phone:home_twice()", "phone:wait(2)",
                              "phone:home()", "phone:wait(1)", "phone:banner(\"Hello\")", "phone:wait(6)",
                              "phone:activator()", "phone:wait(1)", "phone:home()", "phone:wait(1)",
                              "phone:display(false)", "phone:wait(1)", "phone:display(true)",
                              "phone:unlock()", "phone:wait(1)"},
                             {{"enable", true}},
                             0.5};
    return scene;
}

// The indicator comes and goes: with the badges, with the settings at the poll's next tick, and not in the
// dark.
const Scene &indicator() {
    static const Scene scene{{"phone:wait(0.3)",
                              "phone:badge(\"com.apple.mobilemail\", 3)",
                              "phone:badge(\"com.apple.mobilemail\", 0)",
                              "phone:wait(3)",
                              "phone:badge(\"com.apple.MobileSMS\", 1)",
                              "phone:set(\"hide\", true)",
                              "phone:wait(0.2)",
                              "phone:wait(1)",
                              "phone:set(\"hide\", nil)",
                              "phone:wait(1.2)",
                              "phone:display(false)",
                              "phone:badge(\"com.apple.MobileSMS\", 0)",
                              "phone:wait(1.5)",
                              "phone:display(true)",
                              "phone:unlock()",
                              "phone:wait(1)",
                              "phone:delete_settings()",
                              "phone:wait(1)",
                              "phone:respring()",
                              "phone:wait(1)"},
                             {{"enable", true}, {"hide_t", true}},
                             2.5};
    return scene;
}

class BrokenHomeScreen : public testing::TestWithParam<Case> {};

TEST_P(BrokenHomeScreen, IsFoundByItsRule) { expectFound(GetParam()); }

constexpr Case kCases[] = {
    {"second panel", "one panel", panel},
    {"second overlay", "one panel", panel},
    {"leave view", "closed", closedPanel},
    {"take touches", "closed", closedPanel},
    {"keep backdrop", "closed", closedPanel},
    {"show list", "locked", lockedPanel},
    {"show name", "locked", lockedPanel},
    {"say name", "speech", lockedPanel},
    {"clear badge", "behind the lock", lockedPanel},
    {"open mail", "behind the lock", lockedPanel},
    {"unlock", "locked", darkAfterCode},
    {"unlock", "locked", anotherAfterCode},
    {"unlock", "locked", wrongCode},
    {"unlock", "locked", uselessFinger},
    {"arm lock", "locked", rightCode},
    {"double entry", "lists", panel},
    {"forget entry", "lists", closedPanel},
    {"double item", "lists", panel},
    {"hide indicator", "indicator", panel},
    {"show indicator", "indicator", indicator},
    {"second poll", "timers", panel},
    {"stray timer", "timers", panel},
    {"stray follower", "timers", panel},
    {"second observer", "timers", closedPanel},
    {"raise", "quiet", panel},
    {"call unknown", "quiet", panel},
    {"hook unknown", "quiet", panel},
    {"add recogniser", "quiet", closedPanel},
    {"leak windows", "quiet", panel},
    {"swallow click", "hooks", buttons},
    {"click twice", "hooks", buttons},
    {"swallow double click", "hooks", buttons},
    {"swallow banner", "hooks", buttons},
    {"ask system", "hooks", buttons},
    {"break number", "geometry", panel},
    {"move off", "geometry", panel},
    {"stack items", "geometry", panel},
    {"write key", "settings", closedPanel},
};

INSTANTIATE_TEST_SUITE_P(Saboteur, BrokenHomeScreen, testing::ValuesIn(kCases), caseName);

TEST(SoundHomeScreen, GivesNoFindings) {
    for (auto *scene : {panel, lockedPanel, emptyLockedPanel, lateFinger, darkUnlocking, darkAfterCode,
                        anotherAfterCode, wrongCode, uselessFinger, rightCode, anchoredAnew,
                        chosenOnLockScreen, closedPanel, buttons, indicator})
        EXPECT_EQ(textOf(findings(scene(), nullptr)), "");
}

} // namespace
