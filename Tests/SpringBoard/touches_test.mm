// Proves that a finger on the home screen does what it does on a phone: opens, pages, folders.
#include "Fingers.h"

#include <UIKit/UIKit.h>

using harness::middle;
using harness::tap;

namespace {

void swipe(CGPoint from, CGFloat dx) { harness::swipe(from, dx, 0); }

} // namespace

TEST(Touches, OnAnIconOpenItsApplication) {
    harness::boot();
    tap(middle(harness::iconView("org.example.2")));
    EXPECT_EQ(sim::foregroundApplication(), "org.example.2");
    EXPECT_EQ(harness::events({"launch"}), std::vector<std::string>{"launch id=org.example.2"});
}

TEST(Touches, OnALabelOrTheDockCountAsWell) {
    harness::boot();
    CGPoint label = middle(harness::iconView("org.example.1"));
    label.y += 30 + 12;
    tap(label);
    EXPECT_EQ(sim::foregroundApplication(), "org.example.1");
    sim::clickHomeButton();
    harness::wait(1);
    tap(middle(harness::iconView("com.apple.mobilemail")));
    EXPECT_EQ(sim::foregroundApplication(), "com.apple.mobilemail");
}

TEST(Touches, OnAnApplicationReachNoIconBelow) {
    harness::boot();
    sim::openApplication("com.apple.mobilemail");
    harness::wait(1);
    tap(middle(harness::iconView("org.example.2")));
    EXPECT_EQ(sim::foregroundApplication(), "com.apple.mobilemail");
}

TEST(Touches, SwipeBetweenPagesAndOpenNothing) {
    harness::boot(harness::profile("iPhone 6"), harness::applications(40));
    SBIconView *first = harness::iconView("org.example.1"), *later = harness::iconView("org.example.30");
    EXPECT_GE(middle(later).x, 375);
    swipe(CGPointMake(300, 300), -200);
    EXPECT_LT(middle(first).x, 0);
    EXPECT_GE(middle(later).x, 0);
    EXPECT_LE(middle(later).x, 375);
    EXPECT_FALSE(sim::foregroundApplication());
    tap(middle(later));
    EXPECT_EQ(sim::foregroundApplication(), "org.example.30");
    sim::clickHomeButton();
    harness::wait(1);
    EXPECT_LT(middle(first).x, 0) << "back on the page that it was opened from";
    sim::clickHomeButton();
    harness::wait(1);
    EXPECT_GE(middle(first).x, 0) << "another click goes to the first page";
}

TEST(Touches, OpenAFolderAndWhatIsInIt) {
    harness::boot();
    tap(middle(harness::folderView()));
    SBIconView *chat = harness::iconView("org.example.chat");
    ASSERT_TRUE([chat window]);
    tap(middle(chat));
    EXPECT_EQ(sim::foregroundApplication(), "org.example.chat");
    EXPECT_FALSE([chat window]) << "the folder has closed";
    sim::clickHomeButton();
    harness::wait(1);
    tap(middle(harness::folderView()));
    EXPECT_TRUE([chat window]);
    tap(CGPointMake(187, 620));
    EXPECT_FALSE([chat window]) << "a touch beside the icons closes it";
    EXPECT_FALSE(sim::foregroundApplication());
}
