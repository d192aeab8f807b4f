// What a page does on top of storing a value: which alert it raises, with which buttons, and what an answer
// does; and under which key it stores. Two of the alerts belong to rows that are links, so the setter is
// called here.
#include "PendixSettings/Applications/appController.h"
#include "PendixSettings/Configuration/configurationController.h"
#include "PendixSettings/Configuration/indeterminateController.h"
#include "PendixSettings/Core/PaneTranslator.h"
#include "PendixSettings/Core/blueSwitcher.h"
#include "PendixSettings/Icon/ColorNames.h"
#include "PendixSettings/Root/LockedUIViewController.h"
#include "Tweak/Core/Settings.h"
#include "UIKit/Alerts/UIAlertView+Further.h"

#include "Product/SwitchRow.h"
#include "SpringBoard/Harness.h"
#include "SpringBoard/Sandbox.h"
#include "UIKit/Alerts/AlertPanel.h"

namespace {

class PaneSetters : public testing::Test {
protected:
    PaneSetters() {
        harness::boot();
        std::filesystem::create_directories(sandbox.path("/var/mobile/Library/Preferences"));
        std::filesystem::create_directories(folder());
        std::filesystem::copy(LANGUAGES "/en.plist", folder());
    }
    std::filesystem::path folder() { return sandbox.path("/Library/Application Support/Pendix/Languages"); }

    // The texts of the alert that is shown: title and buttons.
    static std::vector<std::string> alert() {
        std::vector<std::string> texts;
        UIAlertView *shown = sim::topmostAlert();
        if (shown) texts.push_back(harness::text([shown title]));
        for (NSInteger i = 0; i < [shown numberOfButtons]; ++i)
            texts.push_back(harness::text([shown buttonTitleAtIndex:i]));
        return texts;
    }

    static void answer(NSInteger button) {
        [sim::topmostAlert() buttonWasPressed:button];
        harness::wait(1);
    }

    harness::Sandbox sandbox;
};

TEST_F(PaneSetters, SwitchesAreTintedWithThePattern) {
    sandbox.putImage("/Library/Application Support/Pendix/background.png", 4, 4, 0xff204060);
    blueSwitcher *cell = [[blueSwitcher alloc] initWithStyle:UITableViewCellStyleDefault
                                             reuseIdentifier:@"switch"
                                                   specifier:harness::switchRow(@"Enable")];
    EXPECT_NE([(UISwitch *)cell.control onTintColor], nil);
    [cell release];
}

TEST_F(PaneSetters, SayWhatAChangeNeeds) {
    const std::vector<std::string> none, restart{"Restart Home Screen?", "Cancel", "OK"};
    struct {
        Class page;
        NSString *key;
        BOOL value, other; // whether the other extension is installed
        std::vector<std::string> alert;
    } const cases[] = {
        {[configurationController class], @"fast", YES, YES, none},
        {[configurationController class], @"b", YES, YES, restart},
        {[configurationController class], @"b", NO, NO, restart},
        {[configurationController class], @"newb", YES, NO, restart},
        {[configurationController class], @"newb", YES, YES, {"Apex 2 Is Installed", "OK"}},
        {[configurationController class], @"rech", YES, NO, {"Reachability", "OK"}},
        {[configurationController class], @"rech", NO, NO, none},
        {[indeterminateController class], @"auto", NO, NO, restart},
    };
    auto list = sandbox.path("/var/lib/dpkg/info/com.a3tweaks.apex2.list");
    std::filesystem::create_directories(list.parent_path());
    for (const auto &c : cases) {
        SCOPED_TRACE(harness::text(c.key));
        std::filesystem::remove(list);
        if (c.other) std::ofstream(list) << "/.\n";
        PendixListController *page = [[c.page new] autorelease];
        PSSpecifier *changed = harness::switchRow(pendix::pane::Translator(c.key));
        [page setValue:[NSNumber numberWithBool:c.value] forSpecifier:changed];
        EXPECT_EQ(pendix::isOn(c.key), c.value);
        EXPECT_EQ([[page getValue:changed] boolValue], c.value);
        EXPECT_EQ(alert(), c.alert);
        harness::events({"respring"});
        if (c.alert.empty()) continue;
        answer(0);
        EXPECT_EQ(harness::events({"respring"}).size(), 0u) << "the first button only closes the alert";
        if (c.alert.size() < 3) continue;
        [page setValue:[NSNumber numberWithBool:c.value] forSpecifier:changed];
        answer(1);
        EXPECT_EQ(harness::events({"respring"}).size(), 1u) << "the other one restarts";
    }
}

// A label goes back to its key; one that has none stores under a key that nobody reads.
TEST_F(PaneSetters, FindTheKeyByTheLabel) {
    PendixListController *page = [[PendixListController new] autorelease];
    [page setValue:@"a" forSpecifier:harness::switchRow(@"Mark Color")];
    [page setValue:@"b" forSpecifier:harness::switchRow(@"no text reads like this")];
    EXPECT_EQ(harness::text(pendix::textSetting(@"colors")), "a");
    EXPECT_EQ(harness::text(pendix::textSetting(@"(null)")), "b");
    EXPECT_EQ([page getValue:harness::switchRow(@"Glow Color")], nil);

    std::filesystem::remove(folder() / "en.plist");
    [page setValue:@"c" forSpecifier:harness::switchRow(@"Mark Color")];
    EXPECT_EQ(harness::text(pendix::textSetting(@"colors")), "a") << "without a table no key is found";
    EXPECT_EQ(harness::text([page getValue:harness::switchRow(@"anything")]), "c");
}

// Cells ask a value for its truth; what does not know it would end the process.
TEST_F(PaneSetters, ShowOnlyWhatACellUnderstands) {
    PendixListController *page = [[PendixListController new] autorelease];
    NSArray *array = [NSArray arrayWithObject:@"a"];
    struct {
        id stored, shown;
    } const cases[] = {
        {@"middle", @"middle"},
        {[NSNumber numberWithBool:YES], [NSNumber numberWithBool:YES]},
        {[NSNumber numberWithInt:7], [NSNumber numberWithInt:7]},
        {array, nil},
        {[NSDictionary dictionary], nil},
        {[NSData data], nil},
        {[NSDate date], nil},
    };
    for (const auto &c : cases) {
        pendix::writeSetting(@"ca", c.stored);
        id shown = [page getValue:harness::switchRow(@"Cards")];
        EXPECT_TRUE(shown == c.shown || [shown isEqual:c.shown]) << harness::text([c.stored description]);
    }
}

TEST_F(PaneSetters, KeepApplicationsApart) {
    auto page = [](NSString *identifier) {
        appController *made = [[appController new] autorelease];
        [[made navigationItem] setTitle:identifier];
        return made;
    };
    PSSpecifier *hide = harness::switchRow(@"Hide from Pendix");
    NSNumber *on = [NSNumber numberWithBool:YES];
    pendix::writeSetting(@"org.example.2", @"text");
    [page(@"org.example.1") setValue:on forSpecifier:hide];
    EXPECT_TRUE(pendix::hide_per(@"org.example.1"));
    EXPECT_EQ([page(@"org.example.2") getValue:hide], nil) << "a text is no entry";
    [page(@"org.example.2") setValue:on forSpecifier:harness::switchRow(@"No Mark on Icon")];
    EXPECT_FALSE(pendix::hide_per(@"org.example.2"));
    EXPECT_TRUE(pendix::badge_per(@"org.example.2", pendix::readSettings()));
    [page(nil) setValue:on forSpecifier:hide];
    EXPECT_EQ([pendix::readSettings() count], 2u) << "a page without a title stores nothing";
}

TEST_F(PaneSetters, ColorsGoBackToTheirNames) {
    for (NSString *name : pendix::pane::colorNames())
        EXPECT_EQ(harness::text(pendix::pane::stringFromColor(pendix::colorFrom(name))), harness::text(name));
    EXPECT_EQ(pendix::pane::colorNames().size(), 12u);
    UIColor *made = [UIColor colorWithRed:0 green:0 blue:1 alpha:1];
    for (UIColor *color : {static_cast<UIColor *>(nil), [UIColor clearColor], made})
        EXPECT_EQ(harness::text(pendix::pane::stringFromColor(color)), "red");
}

TEST_F(PaneSetters, ALockedPageStaysAsItIs) {
    LockedUIViewController *page = [[LockedUIViewController new] autorelease];
    EXPECT_FALSE([page shouldAutorotate]);
    EXPECT_EQ([page supportedInterfaceOrientations], 1u);
}

} // namespace
