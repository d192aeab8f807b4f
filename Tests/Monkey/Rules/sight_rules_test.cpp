// The rules of what somebody sees and does: each fires when just that is broken, and is silent when it is
// not.
#include "Sabotage.hpp"

namespace {

using namespace sabotage;
using sim::Array;
using sim::Object;

const Object kOn{{"enable", true}, {"where", "everyoff"}};

Object with(Object settings, const Object &more) {
    for (const auto &[key, value] : more) settings.insert_or_assign(key, value);
    return settings;
}

Script after(Script script, const Script &more) {
    script.insert(script.end(), more.begin(), more.end());
    return script;
}

// Two badges, and the panel open and at rest from 2.6 s to 6.1 s.
const Script kOpen = {"phone:badge(\"com.apple.mobilemail\", 3)", "phone:badge(\"com.apple.MobileSMS\", 1)",
                      "phone:wait(1)", "phone:activator() phone:wait(1.5)"};
const Script kRest = {"phone:wait(0.5) phone:wait(1.5)", "phone:wait(0.5) phone:wait(1.5)"};

const Scene &opening() {
    static const Scene scene{after(kOpen, kRest), kOn, 0.5};
    return scene;
}
const Scene &resting() {
    static const Scene scene{after(kOpen, kRest), kOn, 3};
    return scene;
}
const Scene &paged() {
    static const Scene scene{after(kOpen, kRest), with(kOn, {{"paging", true}, {"amount", "1"}}), 3};
    return scene;
}
const Scene &light() {
    static const Scene scene{after(kOpen, kRest), with(kOn, {{"light", true}, {"ca", true}, {"blur", true}}),
                             3};
    return scene;
}

// One act from rest; the first item stands at (97, 80).
template <int which>
const Scene &act() {
    static const char *const lines[] = {"phone:tap{97, 80}",
                                        "phone:hold({97, 80}, 1.2)",
                                        "phone:drag({97, 80}, 0, -150, 0.3)",
                                        "phone:home()",
                                        "phone:activator()",
                                        "phone:tap{20, 600}",
                                        "phone:drag({97, 80}, 0, 20, 0.3)",
                                        "phone:banner(\"Hello\")"};
    static const Scene scene{
        after(kOpen, {kRest[0], lines[which] + std::string(" phone:wait(1.5)"), kRest[0]}), kOn, 3};
    return scene;
}

const Object kLocked{
    {"enable", true}, {"pass", true}, {"password", "1234"}, {"where", "every"}, {"clear", true}};

// The keypad at rest from 1.6 s on; its key 5 stands at (187, 215).
const Scene &keypad() {
    static const Scene scene{after(kOpen, {kRest[0], "phone:tap{187, 215} phone:wait(1.5)",
                                           "phone:tap{112, 440} phone:wait(1.5)", kRest[0]}),
                             kLocked, 3};
    return scene;
}
// The finger's face, and the way from it to the keypad; the button stands at (262, 187).
const Scene &finger() {
    static const Scene scene{after(kOpen, {kRest[0], "phone:tap{262, 187} phone:wait(1.5)", kRest[0]}),
                             with(kLocked, {{"touchid", true}}), 3};
    return scene;
}

const Scene &pulsing() {
    static const Scene scene{
        {"phone:badge(\"com.apple.mobilemail\", 3)", "phone:wait(1)", "phone:wait(1)", "phone:wait(1)"},
        with(kOn, {{"glow", true}}),
        1.5};
    return scene;
}
const Scene &dull() {
    static const Scene scene{
        {"phone:badge(\"com.apple.mobilemail\", 3)", "phone:wait(1)", "phone:wait(1)", "phone:wait(1)"},
        kOn,
        1.5};
    return scene;
}
const Scene &marked() {
    static const Scene scene{
        {"phone:badge(\"com.apple.mobilemail\", 3)", "phone:wait(1)", "phone:wait(1)", "phone:wait(1)"},
        with(kOn, {{"b", true}, {"newb", true}, {"colors", "blue"}}),
        1.5};
    return scene;
}

// Through the pages in Settings, with files of theirs away.
Scene pane(std::initializer_list<const char *> missing) {
    Scene scene{{"pane = phone:open_settings()",
                 "phone:wait(1.2)",
                 "pane:open(\"Contact\") phone:wait(1.2)",
                 "pane:press(\"Cancel\") phone:wait(1.2)",
                 "pane:toggle(\"Enable\") phone:wait(1.2)",
                 "pane:open(\"Configuration\") phone:wait(1.2)",
                 "pane:open(\"Indeterminate Badges\") phone:wait(1.2)",
                 "pane:open(\"Mark Color\") phone:wait(1.2)",
                 "pane:swipe(\"left\") phone:wait(1.2)",
                 "pane:press(\"Apply\") phone:wait(1.2)",
                 "pane:press(\"OK\") phone:wait(1.2)",
                 "pane:back() phone:wait(1.2)",
                 "pane:back() phone:wait(1.2)",
                 "pane:open(\"Passcode Lock\") phone:wait(1.2)",
                 "pane:type(\"12\") phone:wait(1.2)",
                 "pane:type(\"99\") phone:wait(1.2)",
                 "pane:type(\"1234\") phone:wait(1.2)",
                 "pane:press(\"Change Passcode\") phone:wait(1.2)",
                 "pane:type(\"1234\") phone:wait(1.2)",
                 "pane:type(\"0000\") phone:wait(1.2)",
                 "pane:type(\"0000\") phone:wait(1.2)",
                 "pane = nil collectgarbage()"},
                kLocked,
                0};
    Array files;
    for (const char *name : missing)
        files.push_back(std::string("/Library/Application Support/Pendix/") + name);
    scene.boot = {{"missing_files", files}};
    return scene;
}
const Scene &wholePane() {
    static const Scene scene = pane({});
    return scene;
}
const Scene &paneWithoutIcon() {
    static const Scene scene = pane({"Contact.png", "Contact@2x.png", "Contact@3x.png"});
    return scene;
}
// An Italian phone, whose first page has lost its words.
const Scene &paneWithoutTexts() {
    static const Scene scene = [] {
        Scene made = pane({"Languages/it.plist"});
        made.boot["language"] = "it";
        made.script.resize(2);
        return made;
    }();
    return scene;
}
const Scene &paneWithoutMark() {
    static const Scene scene = pane(
        {"PendixMiniNotification.png", "PendixMiniNotification@2x.png", "PendixMiniNotification@3x.png"});
    return scene;
}
const Scene &paneWithoutDots() {
    static const Scene scene = pane({"dot.png", "dot@2x.png", "dot@3x.png"});
    return scene;
}

// The indicator goes, for there is no badge, while its panel is open, and the device turns then.
const Scene &leftBehind() {
    static const Scene scene{{"phone:set(\"hide_t\", true)", "phone:rotate(3)",
                              "phone:tap{240, 10} phone:wait(1.5)", "phone:rotate(1)",
                              "phone:wait(0.5) phone:wait(1.5)", "phone:wait(0.5) phone:wait(1.5)"},
                             {{"enable", true}},
                             0,
                             {{"device", "iPhone 5s"}, {"ios", "8.3"}}};
    return scene;
}

class BrokenSight : public testing::TestWithParam<Case> {};

TEST_P(BrokenSight, IsFoundByItsRule) { expectFound(GetParam()); }

constexpr Case kCases[] = {
    {"hide item", "contents", opening},
    {"exchange items", "contents", opening},
    {"rename item", "contents", opening},
    {"renumber item", "contents", opening},
    {"shift item", "layout", resting},
    {"lower item", "layout", resting},
    {"widen panel", "layout", resting},
    {"heighten panel", "layout", resting},
    {"lose dot", "layout", paged},
    {"deaf items", "acts", act<0>},
    {"deaf presses", "acts", act<1>},
    {"keep items", "acts", act<2>},
    {"stay open", "acts", act<3>},
    {"stay open", "acts", act<4>},
    {"stay open", "acts", act<5>},
    {"stay open", "acts", act<7>},
    {"pale name", "looks", resting},
    {"small name", "looks", resting},
    {"square panel", "looks", resting},
    {"square badge", "looks", resting},
    {"pale logo", "looks", resting},
    {"say other", "faces", keypad},
    {"shift key", "faces", keypad},
    {"wrong letters", "faces", keypad},
    {"low panel", "faces", keypad},
    {"pale button", "faces", keypad},
    {"deaf keys", "face acts", keypad},
    {"deaf delete", "face acts", keypad},
    {"deaf choice", "face acts", finger},
    {"dim glow", "marks", pulsing},
    {"glow", "marks", resting},
    {"show badges", "marks", marked},
    {nullptr, "pages", paneWithoutIcon},
    {nullptr, "pages", paneWithoutTexts},
    {nullptr, "page looks", paneWithoutMark},
    {nullptr, "page looks", paneWithoutDots},
};

INSTANTIATE_TEST_SUITE_P(Saboteur, BrokenSight, testing::ValuesIn(kCases), caseName);

TEST(SoundSight, GivesNoFindings) {
    for (auto *scene : {opening, resting, paged, light, act<0>, act<1>, act<2>, act<3>, act<4>, act<5>,
                        act<6>, act<7>, keypad, finger, pulsing, dull, marked, leftBehind, wholePane})
        EXPECT_EQ(textOf(findings(scene(), nullptr)), "");
}

} // namespace
