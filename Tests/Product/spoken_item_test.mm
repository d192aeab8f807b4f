// What is heard of an application whose name is empty, and whose badge is a text or a large number.
#include "Tweak/Panel/SpokenPanel.h"

#include "SpringBoard/Harness.h"
#include "SpringBoard/Sandbox.h"

#include <UIKit/UIKit.h>

namespace {

constexpr const char *kTable =
    "{ spoken_one_new = \"1 new\"; spoken_new = \"%d new\"; spoken_group = \",\"; }";

TEST(SpokenItem, HasANameAndACountWhateverThereIs) {
    harness::Sandbox sandbox;
    auto folder = sandbox.path("/Library/Application Support/Pendix/Languages");
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "en.plist") << kTable;
    auto options = harness::applications();
    for (auto &application : options.applications)
        if (application.identifier == "org.example.2") application.name = "";
    harness::boot(harness::profile("iPhone 5"), options);
    struct {
        const char *identifier;
        id badge;
        const char *name, *count;
    } const cases[] = {
        {"com.apple.mobilemail", nil, "Mail", ""},
        {"com.apple.mobilemail", [NSNumber numberWithInt:1], "Mail", "1 new"},
        {"com.apple.mobilemail", [NSNumber numberWithInt:999], "Mail", "999 new"},
        {"com.apple.mobilemail", [NSNumber numberWithInt:1000], "Mail", "1,000 new"},
        {"com.apple.mobilemail", [NSNumber numberWithInt:1234056], "Mail", "1,234,056 new"},
        {"com.apple.mobilemail", @"busy", "Mail", "busy"},
        {"com.apple.mobilemail", @"", "Mail", ""},
        {"org.example.2", [NSNumber numberWithInt:2], "2", "2 new"},
    };
    for (const auto &each : cases) {
        [harness::application(each.identifier) setBadge:each.badge];
        UIView *item = [[[UIView alloc] initWithFrame:CGRectZero] autorelease];
        item.layer.name = [NSString stringWithUTF8String:each.identifier];
        pendix::describe(item);
        EXPECT_EQ(harness::text(item.accessibilityLabel), each.name);
        EXPECT_EQ(harness::text(item.accessibilityValue), each.count) << each.name;
    }
}

} // namespace
