// The rule of the lock's page in Settings finds a page that lies open unasked, and no other.
#include "Tools/Monkey/Rules/Rules.hpp"

#include <gtest/gtest.h>

namespace {

using sim::Object;
using sim::Value;

constexpr const char *kRoot = "PendixSettingsController", *kSecond = "configurationController",
                     *kPage = "passwordController", *kList = "NewPSListItemsController",
                     *kOther = "LAListenerSettingsViewController", *kSheet = "UIViewController";

struct Look {
    const char *call, *page; // nullptr: Settings are not open
    double seconds = 1.5;    // that it took
};

struct Way {
    const char *name;
    std::vector<Look> looks;
    bool found;
    Object settings = {{"enable", true}, {"pass", true}, {"password", "1234"}};
};

void PrintTo(const Way &way, std::ostream *out) { *out << way.name; }

sim::Findings findingsOn(const Way &way) {
    const sim::Observation seen;
    const sim::Array none;
    const sim::BootOptions device;
    const Value settings = way.settings;
    sim::Memory memory;
    sim::Findings findings;
    std::optional<sim::PaneSight> before;
    int64_t time = 0;
    for (const Look &look : way.looks) {
        std::optional<sim::PaneSight> now;
        if (look.page) now.emplace().type = look.page;
        if (look.page == kSheet) now->sheet.emplace();
        const int64_t from = time;
        time += static_cast<int64_t>(look.seconds * 1e9);
        const std::string call = look.call;
        const sim::Moment moment{&seen, seen, call,   none,   none, settings, settings,
                                 false, true, device, before, now,  from,     time};
        sim::checkGate(moment, memory, findings);
        before = now;
    }
    return findings;
}

class GateRule : public testing::TestWithParam<Way> {};

TEST_P(GateRule, FindsThePageOpenUnasked) { EXPECT_EQ(findingsOn(GetParam()).empty(), !GetParam().found); }

const Look kEnter{"pane:open(\"Passcode Lock\")", kSheet}, kCode{"pane:type(\"1234\")", kPage},
    kRest{"phone:wait(1.5)", kPage}, kAway{"pane:back()", kSecond};

const Way kWays[] = {
    {"never asked", {{"pane:open(\"Passcode Lock\")", kPage}, kRest}, true},
    {"the sheet on its way in",
     {{"pane:open(\"Passcode Lock\")", kPage, 0.1}, {"phone:wait(0.4)", kSheet, 0.4}},
     false},
    {"asked, and the code", {kEnter, kCode, kRest}, false},
    {"the code in parts, with a slip",
     {kEnter,
      {"pane:type(\"12\")", kSheet},
      {"pane:type(\"5\")", kSheet},
      {"pane:erase(1)", kSheet},
      {"pane:type(\"34\")", kPage},
      kRest},
     false},
    {"a wrong code", {kEnter, {"pane:type(\"1235\")", kPage}, kRest}, true},
    {"cancelled, and the page stays", {kEnter, {"pane:press(\"Cancel\")", kPage}, kRest}, true},
    {"cancelled, and the page goes", {kEnter, {"pane:press(\"Cancel\")", kPage, 0.2}, kAway}, false},
    {"its list, and back", {kEnter, kCode, {"pane:open(\"Require Passcode\")", kList}, kRest, kRest}, false},
    {"its own sheet, and back",
     {kEnter, kCode, {"pane:press(\"Change Passcode\")", kSheet}, kRest, kRest},
     false},
    {"entered again", {kEnter, kCode, kAway, kEnter, {"pane:press(\"Cancel\")", kPage}, kRest}, true},
    {"left by its list, entered again",
     {kEnter,
      kCode,
      {"pane:open(\"Require Passcode\")", kList},
      {"pane:tap{100, 500}", kRoot},
      kAway,
      kRest,
      kRest},
     true},
    {"below another sheet", {{"pane:up(2)", kOther}, {"pane:press(\"Cancel\")", kPage}, kRest}, true},
    {"another Settings application", {kEnter, kCode, {"pane = nil", nullptr}, kRest, kRest}, true},
    {"fingers on the keys",
     {kEnter,
      {"pane:tap{60, 500}", kSheet},
      {"pane:tap{160, 500}", kSheet},
      {"pane:tap{260, 500}", kSheet},
      {"pane:tap{60, 560}", kPage},
      kRest},
     false},
    {"no lock", {{"pane:open(\"Passcode Lock\")", kPage}, kRest}, false, {{"password", "1234"}}},
    {"no code", {{"pane:open(\"Passcode Lock\")", kPage}, kRest}, false, {{"pass", true}}},
};

INSTANTIATE_TEST_SUITE_P(Gate, GateRule, testing::ValuesIn(kWays));

} // namespace
