// The list of badged applications: newest change first, nobody twice, nobody hidden. It is the order in which
// the panel will show them.
#include "Tweak/Core/State.h"
#include "Tweak/Start/HookTable.h"
#include "Tweak/StatusBar/StatusBar.h"

#include "SpringBoard/Harness.h"
#include "SpringBoard/Sandbox.h"

namespace {

class BadgeList : public testing::TestWithParam<sim::Version> {
protected:
    void SetUp() override {
        harness::boot(harness::profile("iPhone 5", GetParam()), harness::applications(), [] {
            pendix::createBadgeList();
            pendix::installHooks();
        });
    }

    void settings(const std::string &text) {
        auto file = sandbox.path("/var/mobile/Library/Preferences/org.quillhub.PendixSettings.plist");
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << text;
    }

    std::string list() {
        std::string result;
        for (NSString *identifier in pendix::datas) result += std::string([identifier UTF8String]) + " ";
        return result;
    }

    harness::Sandbox sandbox;
};

TEST_P(BadgeList, HoldsTheNewestChangeFirst) {
    struct {
        const char *application;
        int badge;
        const char *expected;
    } const steps[] = {
        {"org.example.1", 1, "org.example.1 "},
        {"org.example.2", 5, "org.example.2 org.example.1 "},
        {"org.example.1", 2, "org.example.1 org.example.2 "},
        {"org.example.3", 1000, "org.example.3 org.example.1 org.example.2 "},
        {"org.example.1", 0, "org.example.3 org.example.2 "},
        {"org.example.1", 0, "org.example.3 org.example.2 "},
        {"org.example.2", 0, "org.example.3 "},
        {"org.example.chat", 1, "org.example.chat org.example.3 "}, // in a folder
        {"org.example.3", 0, "org.example.chat "},
        {"org.example.chat", 0, "org.example.chat "}, // a folder takes nobody off
    };
    for (const auto &step : steps) {
        sim::setBadge(step.application, step.badge);
        EXPECT_EQ(list(), step.expected) << step.application << " " << step.badge;
    }
    EXPECT_GT(pendix::badgeHeight, 0);
}

TEST_P(BadgeList, GoesOnInTheDark) {
    pendix::locked = YES;
    sim::setBadge("org.example.1", 1);
    EXPECT_EQ(list(), "org.example.1 ");
    EXPECT_FALSE([pendix::Spring checkBadges]);
    pendix::locked = NO;
    EXPECT_TRUE([pendix::Spring checkBadges]);
}

TEST_P(BadgeList, LosesHiddenApplicationsWhenAsked) {
    for (int i = 1; i <= 4; ++i) sim::setBadge("org.example." + std::to_string(i), i);
    settings("{ \"org.example.2\" = { hide_perapp = YES; }; \"org.example.3\" = { hide_perapp = 1; }; "
             "\"org.example.1\" = { hide_perapp = { a = b; }; }; \"org.example.4\" = hide_perapp; }");
    EXPECT_TRUE([pendix::Spring checkBadges]);
    EXPECT_EQ(list(), "org.example.4 org.example.1 ");
    sim::setBadge("org.example.2", 7);
    EXPECT_EQ(list(), "org.example.4 org.example.1 ") << "and is not taken in again";
    settings("{ badge = YES; }");
    EXPECT_FALSE([pendix::Spring checkBadges]) << "in running mode badges do not count";
    EXPECT_EQ(list(), "org.example.4 org.example.1 ");
}

INSTANTIATE_TEST_SUITE_P(Versions, BadgeList, testing::Values(sim::Version{7, 1}, sim::Version{8, 1}),
                         [](const auto &info) { return "iOS" + std::to_string(info.param.major); });

} // namespace
