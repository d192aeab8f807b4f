// Proves when and in which order the home screen draws badges: what listens in on badge views sees each
// change once, with the view in its place.
#include "Harness.h"

#include "SpringBoard/Home/SBIconController.h"
#include "UIKit/CoreGraphics/CGGeometry+Further.h"

namespace {

using harness::badgeOf;
using harness::iconView;

std::vector<std::string> calls;
IMP originalInit, originalResize, originalUpdate;

std::string owner(UIView *badge) {
    UIView *view = [badge superview];
    if (![view isKindOfClass:[SBIconView class]]) return "nobody";
    SBIcon *icon = [static_cast<SBIconView *>(view) icon];
    return [icon isFolderIcon] ? "folder" : harness::text([icon nodeIdentifier]);
}

id watchInit(id self, SEL selector) {
    calls.push_back("init");
    return reinterpret_cast<id (*)(id, SEL)>(originalInit)(self, selector);
}

void watchResize(SBIconBadgeView *self, SEL selector, UIImage *image) {
    reinterpret_cast<void (*)(id, SEL, id)>(originalResize)(self, selector, image);
    calls.push_back("resize " + owner(self) + (image ? " text" : " nil"));
}

void watchUpdate(SBIconView *self, SEL selector, BOOL animated) {
    reinterpret_cast<void (*)(id, SEL, BOOL)>(originalUpdate)(self, selector, animated);
    SBIcon *icon = [self icon];
    calls.push_back("update " + ([icon isFolderIcon] ? "folder" : harness::text([icon nodeIdentifier])));
}

void watch() {
    Class badge = [SBIconBadgeView class];
    originalInit = sim::replaceMethod(badge, @selector(init), reinterpret_cast<IMP>(watchInit));
    originalResize =
        sim::replaceMethod(badge, @selector(_resizeForTextImage:), reinterpret_cast<IMP>(watchResize));
    originalUpdate = sim::replaceMethod([SBIconView class], @selector(_updateAccessoryViewWithAnimation:),
                                        reinterpret_cast<IMP>(watchUpdate));
}

std::vector<std::string> takeCalls() { return std::exchange(calls, {}); }

using Calls = std::vector<std::string>;

const char *const kMail = "com.apple.mobilemail", *const kChat = "org.example.chat",
                  *const kGames = "org.example.games";

} // namespace

TEST(Badges, EachChangeIsDrawnOnceAndInItsPlace) {
    harness::boot();
    watch();
    struct Case {
        const char *identifier;
        int value;
        Calls calls;
    };
    const Case cases[] = {
        {kMail, 3, {"init", "resize com.apple.mobilemail text", "update com.apple.mobilemail"}},
        {kMail, 3, {}},
        {kMail, 4, {"resize com.apple.mobilemail text", "update com.apple.mobilemail"}},
        {kMail, 0, {"resize com.apple.mobilemail nil", "update com.apple.mobilemail"}},
        {kMail, 0, {}},
        {kMail, 1, {"init", "resize com.apple.mobilemail text", "update com.apple.mobilemail"}},
        {kChat, 2, {"update org.example.chat", "init", "resize folder text", "update folder"}},
        {kGames, 5, {"update org.example.games", "resize folder text", "update folder"}},
        {kChat, 0, {"update org.example.chat", "resize folder text", "update folder"}},
        {kGames, 0, {"update org.example.games", "resize folder nil", "update folder"}},
    };
    for (const auto &step : cases) {
        SCOPED_TRACE(std::string(step.identifier) + " " + std::to_string(step.value));
        ASSERT_TRUE(sim::setBadge(step.identifier, step.value));
        EXPECT_EQ(takeCalls(), step.calls);
    }
}

TEST(Badges, TheOnesFromBeforeTheLaunchComeInListOrder) {
    auto options = harness::applications();
    options.applications[1].badge = 2;                               // Phone
    options.applications[3].badge = 7;                               // org.example.2
    options.applications[options.applications.size() - 2].badge = 4; // Chat, in the folder
    harness::boot(harness::profile("iPhone 6"), options, watch);
    Calls resizes;
    for (const auto &call : takeCalls())
        if (call.rfind("resize", 0) == 0) resizes.push_back(call);
    EXPECT_EQ(resizes, (Calls{"resize com.apple.mobilephone text", "resize org.example.2 text",
                              "resize folder text"}));
}

TEST(Badges, FoldersShowTheSumAndWhatIsInsideShowsNone) {
    harness::boot();
    sim::setBadge(kChat, 2);
    sim::setBadge(kGames, 1200);
    EXPECT_EQ([[harness::folderView() icon] badgeValue], 1202);
    EXPECT_TRUE(badgeOf(harness::folderView()));
    EXPECT_EQ([[iconView(kChat) icon] badgeValue], 2);
    EXPECT_FALSE(badgeOf(iconView(kChat)));
    SBIcon *folder = [harness::folderView() icon];
    EXPECT_EQ([[[static_cast<SBFolderIcon *>(folder) folder] allIcons] count], 2u);
}

TEST(Badges, TakeNumbersTextsAndNothing) {
    harness::boot();
    SBApplication *mail = harness::application(kMail);
    struct Case {
        id badge;
        NSInteger value;
        bool drawn;
        const char *event;
    };
    const Case cases[] = {
        {[NSNumber numberWithInt:12], 12, true, "badge_set id=com.apple.mobilemail value=12"},
        {@"7", 7, true, "badge_set id=com.apple.mobilemail value=7"},
        {@"!", 0, true, "badge_set id=com.apple.mobilemail value=!"},
        {@"", 0, false, "badge_set id=com.apple.mobilemail value="},
        {[NSNumber numberWithInt:0], 0, false, "badge_set id=com.apple.mobilemail value=0"},
        {nil, 0, false, "badge_set id=com.apple.mobilemail value=0"},
    };
    for (const auto &step : cases) {
        SCOPED_TRACE(step.event);
        [mail setBadge:step.badge];
        harness::wait(1);
        EXPECT_EQ([[iconView(kMail) icon] badgeValue], step.value);
        EXPECT_EQ(badgeOf(iconView(kMail)) != nil, step.drawn);
        EXPECT_EQ(harness::events({"badge_set"}), Calls{step.event});
    }
}

TEST(Badges, GrowWithTheTextAndShrinkAwayAtTheEnd) {
    harness::boot();
    SBIconView *view = iconView(kMail);
    CGFloat right = 0;
    for (int value : {1, 10, 100, 1000}) {
        sim::setBadge(kMail, value);
        harness::wait(1);
        CGRect frame = [badgeOf(view) frame];
        EXPECT_EQ(frame.size.height, 24);
        EXPECT_GE(frame.size.width, 24);
        if (value > 1) EXPECT_NEAR(CGRectGetMaxX(frame), right, 0.01) << "grows to the left";
        right = CGRectGetMaxX(frame);
    }
    EXPECT_GT([badgeOf(view) frame].size.width, 40);
    sim::setBadge(kMail, 0);
    harness::wait(0.1);
    EXPECT_TRUE(badgeOf(view)) << "still shrinking";
    harness::wait(0.3);
    EXPECT_FALSE(badgeOf(view));
}

TEST(Badges, OfAnOpenFolderStandOnItsIcons) {
    harness::boot();
    sim::setBadge(kChat, 2);
    watch();
    [[SBIconController sharedInstance] iconTapped:harness::folderView()];
    harness::wait(1);
    EXPECT_TRUE([iconView(kChat) window]);
    EXPECT_TRUE(badgeOf(iconView(kChat)));
    EXPECT_EQ(takeCalls(), (Calls{"init", "resize org.example.chat text", "update org.example.chat",
                                  "update org.example.games"}));
    sim::clickHomeButton();
    harness::wait(1);
    EXPECT_EQ(takeCalls(), (Calls{"update org.example.chat", "update org.example.games"}))
        << "no badge has changed";
    EXPECT_FALSE([iconView(kChat) window]);
    EXPECT_FALSE(badgeOf(iconView(kChat)));
}
