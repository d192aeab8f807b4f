// Proves that a banner slides in over the status bar, stays five seconds and goes, that a later one takes its
// place, and that a finger opens what it came from or sends it away.
#include "Fingers.h"

#include "SpringBoard/Banners/BannerContext.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/Views/ViewState.h"

namespace {

UIView *banner() { return harness::findView("SBDefaultBannerView"); }

double presentedTop() { return sim::presented([banner() layer]).frame().origin.y; }

} // namespace

TEST(Banners, ComeAndGo) {
    harness::boot();
    sim::presentBanner("Hello");
    ASSERT_TRUE(banner());
    EXPECT_EQ(presentedTop(), -64) << "from above";
    harness::wait(0.15);
    EXPECT_GT(presentedTop(), -64);
    EXPECT_LT(presentedTop(), 0);
    harness::wait(0.2);
    EXPECT_EQ(presentedTop(), 0);
    EXPECT_TRUE(harness::findView("UILabel", @"Hello"));
    EXPECT_EQ(sim::displayedWindows().back(), [banner() window]) << "above everything of the system's";
    harness::wait(4.6);
    EXPECT_TRUE(banner());
    harness::wait(0.5);
    EXPECT_FALSE(banner());
}

TEST(Banners, TakeEachOthersPlace) {
    harness::boot();
    size_t windows = sim::allWindows().size();
    sim::presentBanner("one");
    harness::wait(4);
    sim::presentBanner("two");
    EXPECT_FALSE(harness::findView("UILabel", @"one"));
    harness::wait(4);
    EXPECT_TRUE(harness::findView("UILabel", @"two")) << "its own five seconds";
    harness::wait(2);
    EXPECT_FALSE(banner());
    EXPECT_EQ(sim::allWindows().size(), windows);
}

TEST(Banners, FollowTheFinger) {
    harness::boot();
    sim::presentBanner("away");
    harness::wait(0.5);
    harness::swipe(CGPointMake(180, 62), 0, -58);
    EXPECT_FALSE(banner());
    EXPECT_FALSE(sim::foregroundApplication());
    sim::presentBanner("open");
    harness::wait(0.5);
    harness::tap(CGPointMake(180, 30));
    EXPECT_EQ(sim::foregroundApplication(), "com.apple.mobilemail") << "the first application's";
    harness::wait(1);
    EXPECT_FALSE(banner());
    sim::presentBanner("beside");
    harness::wait(0.5);
    harness::tap(CGPointMake(180, 300));
    EXPECT_TRUE(banner()) << "a touch elsewhere goes elsewhere";
}

TEST(Banners, AreShownForAnythingThatIsPresented) {
    harness::boot();
    SBBannerController *controller = [SBBannerController sharedInstance];
    [controller _presentBannerForContext:nil reason:0];
    EXPECT_TRUE(banner());
    [controller _presentBannerForContext:@"what is this" reason:1];
    harness::wait(0.5);
    harness::tap(CGPointMake(180, 30));
    harness::wait(0.5);
    EXPECT_FALSE(banner());
    EXPECT_EQ(harness::events({"launch", "unrecognized"}), std::vector<std::string>{});
}
