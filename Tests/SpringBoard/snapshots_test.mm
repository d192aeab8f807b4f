// Proves that an application's last picture lies on disk where the switcher keeps it, and only for
// applications that the system has seen.
#include "Harness.h"
#include "Sandbox.h"

#include <UIKit/UIImage.h>

namespace {

NSArray *pictures(const char *identifier) {
    NSString *name = [NSString stringWithUTF8String:identifier];
    NSString *folder =
        [[harness::application(identifier) _baseAppSnapshotPath] stringByAppendingPathComponent:name];
    NSMutableArray *paths = [NSMutableArray array];
    for (NSString *file in [[NSFileManager defaultManager] contentsOfDirectoryAtPath:folder error:nullptr])
        [paths addObject:[folder stringByAppendingPathComponent:file]];
    return paths;
}

sim::SharedOptions oneUnseen() {
    auto options = harness::applications();
    options.applications[2].snapshot = false; // org.example.1
    return options;
}

} // namespace

TEST(Snapshots, ShowTheWholeScreen) {
    harness::Sandbox sandbox;
    harness::boot(harness::profile("iPhone 5"), oneUnseen());
    NSArray *files = pictures("com.apple.mobilemail");
    ASSERT_EQ([files count], 1u);
    EXPECT_NE([[files objectAtIndex:0] rangeOfString:@"Portrait"].location,
              static_cast<NSUInteger>(NSNotFound));
    UIImage *image = [UIImage imageWithContentsOfFile:[files objectAtIndex:0]];
    EXPECT_EQ([image size].width, 320);
    EXPECT_EQ([image size].height, 568);
    EXPECT_TRUE(std::filesystem::exists(
        sandbox.path("/var/mobile/Library/Caches/Snapshots/com.apple.mobilemail/com.apple.mobilemail")));
}

TEST(Snapshots, ComeWhenAnApplicationIsLeft) {
    harness::Sandbox sandbox;
    harness::boot(harness::profile("iPhone 5"), oneUnseen());
    EXPECT_EQ([pictures("org.example.1") count], 0u);
    sim::openApplication("org.example.1");
    sim::clickHomeButton();
    harness::wait(1);
    EXPECT_EQ([pictures("org.example.1") count], 1u);
}

TEST(Snapshots, LeaveWhatLiesThereAlone) {
    harness::Sandbox sandbox;
    std::string file = "/var/mobile/Library/Caches/Snapshots/org.example.2/org.example.2/Portrait@2x.png";
    sandbox.putImage(file, 8, 8, 0xff00ff00);
    harness::boot(harness::profile("iPhone 5"), oneUnseen());
    EXPECT_EQ([pictures("org.example.2") count], 1u);
}
