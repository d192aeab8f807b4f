// What Activator shows of the extension in its list of listeners, and where it may be assigned.
#include "SpringBoard/Services/LAActivator+Further.h"
#include "Tweak/Triggers/QLActivatorListener.h"

#include "SpringBoard/Sandbox.h"

#include <gtest/gtest.h>

namespace {

class Listener : public testing::Test {
protected:
    void TearDown() override { [listener release]; }

    std::string description() {
        NSString *text = [listener activator:nil requiresLocalizedDescriptionForListenerName:@"any"];
        return text ? [text UTF8String] : "nil";
    }

    harness::Sandbox sandbox;
    QLActivatorListener *listener = [QLActivatorListener new];
};

TEST_F(Listener, TellsItsNameAndModes) {
    EXPECT_TRUE([[listener activator:nil requiresLocalizedTitleForListenerName:@"any"] isEqual:@"Pendix"]);
    EXPECT_EQ([listener activator:nil requiresLocalizedGroupForListenerName:@"any"], nil)
        << "no group of its own";
    NSArray *modes = [listener activator:nil requiresCompatibleEventModesForListenerWithName:@"any"];
    for (NSString *mode in [NSArray arrayWithObjects:@"springboard", @"lockscreen", @"application", nil])
        EXPECT_TRUE([modes containsObject:mode]) << [mode UTF8String];
}

TEST_F(Listener, DescribesItselfAsTheLanguageTableSays) {
    EXPECT_EQ(description(), "(null)") << "without a table";
    auto folder = sandbox.path("/Library/Application Support/Pendix/Languages");
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "en.plist") << "{ activator_desc = \"Shows the panel\"; }";
    EXPECT_EQ(description(), "Shows the panel");
}

TEST_F(Listener, HasNoIconWhereTheFileIsMissing) {
    EXPECT_EQ([listener activator:nil requiresIconForListenerName:@"any" scale:2], nil);
    EXPECT_EQ([listener activator:nil requiresSmallIconForListenerName:@"any" scale:2], nil);
}

} // namespace
