// Which tables boot a device and which are refused, and that the refusal says what to change.
#include "Runtime/Values/Json.hpp"
#include "Supervisor/Boot/BootOptions.hpp"

#include <gtest/gtest.h>

namespace {

using sim::Array;
using sim::Object;
using sim::Value;

constexpr const char *kStock =
    R"([{"id": "com.example.mail", "name": {"en": "Mail", "it": "Posta"}, "dock": true},
                                   {"id": "com.example.game", "name": {"en": "Game"}, "folder": "Social"}])";

sim::BootOptions read(Value table) { return sim::readBootOptions(table, kStock); }

TEST(BootOptions, AnEmptyTableGivesTheUsualDevice) {
    for (const Value &table : {Value(), Value(Object{}), Value(Array{})}) {
        auto options = read(table);
        EXPECT_STREQ(options.profile->name, "iPhone 6");
        EXPECT_EQ(options.version, "8.1");
        EXPECT_EQ(options.wallClock, 1425205230) << "2015-03-01 10:20:30 UTC";
        EXPECT_FALSE(options.settings);
        EXPECT_TRUE(options.extension);
        EXPECT_FALSE(options.colorBadges);
        EXPECT_FALSE(options.passcode);
        EXPECT_FALSE(options.interfaceTurns.has_value()) << "as the device's";
        ASSERT_EQ(options.applications.size(), 2u);
        EXPECT_EQ(options.applications[1].folder, "Social");
    }
}

TEST(BootOptions, AModelIdentifierIsADevice) {
    EXPECT_STREQ(read(Object{{"device", "iPhone7,2"}}).profile->name, "iPhone 6");
}

TEST(BootOptions, ALanguageWithoutTextsIsRemarked) {
    EXPECT_TRUE(read(Object{{"language", "it"}}).remarks.empty());
    EXPECT_EQ(
        read(Object{{"language", "xx"}}).remarks,
        std::vector<std::string>{"the system has no texts in 'xx' and shows English ones; it has en and it"});
    EXPECT_EQ(read(Object{{"language", "en"}}).remarks, std::vector<std::string>{});
}

TEST(BootOptions, ApplicationsGetTheirDefaults) {
    auto options =
        read(Object{{"language", "it"},
                    {"apps", Array{Object{{"id", "com.example.mail"}},
                                   Object{{"id", "org.other.thing"}, {"badge", 2}, {"icon", false}}}}});
    ASSERT_EQ(options.applications.size(), 2u);
    EXPECT_EQ(options.applications[0].name, "Posta") << "the stock name in the device's language";
    EXPECT_FALSE(options.applications[0].dock) << "in home-screen order, as listed";
    EXPECT_EQ(options.applications[1].name, "thing");
    EXPECT_EQ(options.applications[1].badge, 2);
    EXPECT_FALSE(options.applications[1].icon);
    EXPECT_TRUE(options.applications[1].snapshot);
    EXPECT_TRUE(options.applications[1].statusBar);
}

TEST(BootOptions, TheOtherExtensionIsPresentWhenATableIsGiven) {
    EXPECT_FALSE(read(Object{{"color_badges", false}}).colorBadges);
    auto badges = read(Object{{"color_badges", Object{{"borders", false}}}}).colorBadges;
    ASSERT_TRUE(badges);
    EXPECT_TRUE(badges->enabled);
    EXPECT_FALSE(badges->borders);
}

TEST(BootOptions, RefusalsSayWhatToChange) {
    struct {
        Object table;
        const char *part;
    } const cases[] = {
        {{{"devcie", "iPhone 5"}}, "unknown option 'devcie'; did you mean 'device'?"},
        {{{"device", 5}}, "'device' must be a string, not 5"},
        {{{"device", "iPhone 5S"}}, "did you mean 'iPhone 5s'?"},
        {{{"ios", "7.0"}}, "no iPhone 6 ever ran iOS 7.0; it is simulated with 8.0, 8.1 and 8.3"},
        {{{"ios", "9.0"}}, "iOS 9.0 is not simulated; the iPhone 6 is with 8.0, 8.1 and 8.3"},
        {{{"device", "iPhone7,3"}}, "did you mean 'iPhone7,2'?"},
        {{{"device", "iPhone 4"}, {"ios", "8.1"}}, "7.0 and 7.1"},
        {{{"ios", 8.1}}, "'ios' must be a string, not 8.1"},
        {{{"clock", "2015-02-30 10:00:00"}}, "must look like"},
        {{{"clock", "2015-02-03"}}, "must look like"},
        {{{"settings", Array{1}}}, "'settings' must be a table with names"},
        {{{"settings", Object{}}, {"settings_text", ""}}, "not both"},
        {{{"extension", "yes"}}, "'extension' must be true or false, not \"yes\""},
        {{{"interface_turns", "no"}}, "'interface_turns' must be true or false, not \"no\""},
        {{{"hide_classes", "UIView"}}, "'hide_classes' must be a list"},
        {{{"hide_classes", Array{1}}}, "a list of strings"},
        {{{"missing_files", Array{"Pendix.png"}}}, "absolute paths"},
        {{{"hide_methods", "UIView tag"}}, "'hide_methods' must be a list"},
        {{{"nil_methods", Array{1}}}, "a list of strings"},
        {{{"fail_writes", Array{Object{{"path", "x"}}}}}, "fail_writes[1]: 'path' must be an absolute path"},
        {{{"fail_writes", Array{Object{{"path", "/x"}, {"error", "EPERM"}}}}}, "'error' must be"},
        {{{"fail_writes", Array{Object{{"path", "/x"}, {"call", "close"}}}}}, "'call' must be"},
        {{{"fail_writes", Array{Object{{"path", "/x"}, {"first", 0}}}}}, "count from 1"},
        {{{"apps", Object{{"id", "x"}}}}, "'apps' must be a list"},
        {{{"apps", Array{Object{{"name", "x"}}}}}, "apps[1]: an application needs an 'id'"},
        {{{"apps", Array{Object{{"id", "x"}, {"bagde", 1}}}}}, "did you mean 'badge'?"},
        {{{"apps", Array{Object{{"id", "x"}, {"badge", -1}}}}}, "must not be negative"},
        {{{"apps", Array{Object{{"id", "x"}, {"status_bar", 0}}}}}, "'status_bar' must be true or false"},
        {{{"apps", Array{Object{{"id", "x"}}, Object{{"id", "x"}}}}}, "apps[2]: 'x' is listed twice"},
        {{{"color_badges", Object{{"border", true}}}}, "did you mean 'borders'?"},
        {{{"color_badges", true}, {"passcod", true}}, "did you mean 'passcode'?"},
    };
    for (const auto &test : cases) {
        try {
            read(test.table);
            ADD_FAILURE() << "booted, wanted: " << test.part;
        } catch (const sim::BootError &error) {
            std::string text = error.what();
            EXPECT_TRUE(text.starts_with("boot: ") || text.starts_with("boot:")) << text;
            EXPECT_NE(text.find(test.part), std::string::npos) << text << "\nwanted: " << test.part;
        }
    }
}

TEST(BootMessage, SurvivesTheWayToAProcess) {
    sim::BootMessage message;
    static_cast<sim::SharedOptions &>(message) = read(Object{
        {"apps", Array{Object{{"id", "org.a"},
                              {"badge", 3},
                              {"running", true},
                              {"folder", "Social"},
                              {"icon", false},
                              {"snapshot", false}}}},
        {"extension", false},
        {"hide_classes", Array{"A"}},
        {"hide_methods", Array{"A b"}},
        {"nil_methods", Array{"A c"}},
        {"fail_writes",
         Array{Object{{"path", "/var"}, {"error", "EIO"}, {"call", "open"}, {"first", 2}, {"times", 4}}}},
        {"color_badges", Object{{"enabled", false}, {"borders", false}}},
        {"passcode_locked", true}});
    message.applications[0].dock = true;
    message.device = {"iPhone 6", "iPhone7,2", 375, 667, 2, true, true, true, "8.1", "it"};
    message.now = 7;
    message.wallClock = 8.5;
    message.root = "/r", message.platform = "/p", message.countedFile = "/c", message.entry = "e";
    Value sent = sim::toValue(message);
    EXPECT_TRUE(sim::readBootMessage(sim::parseJson(sim::toJson(sent))) == message) << sim::toJson(sent);
}

TEST(Profiles, EveryPairThatExistedCanBeBooted) {
    int pairs = 0;
    for (const auto &profile : sim::profiles()) {
        for (const char *version : {"7.0", "7.1", "8.0", "8.1", "8.3", "8.2", ""}) {
            Object table{{"device", profile.name}, {"ios", version}};
            pairs += profile.ran(version);
            if (profile.ran(version)) {
                EXPECT_EQ(read(table).version, version);
            } else {
                EXPECT_THROW(read(table), sim::BootError) << profile.name << ' ' << version;
            }
        }
    }
    // Two versions on the oldest phone, all five on five devices, three on two phones, two on two tablets.
    EXPECT_EQ(pairs, 2 + 5 * 5 + 2 * 3 + 2 * 2);
}

} // namespace
