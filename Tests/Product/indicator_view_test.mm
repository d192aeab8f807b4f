// The indicator's view answers a tap and nothing else, whatever recognisers others have given it.
#include "Tweak/Core/State.h"
#include "Tweak/Start/HookTable.h"
#include "Tweak/StatusBar/StatusBar.h"

#include "SpringBoard/Harness.h"
#include "SpringBoard/Sandbox.h"

#include <Substrate/CydiaSubstrate.h>
#include <UIKit/UIKit.h>

namespace {

id (*original)(UIStatusBarItemView *, SEL, UIStatusBarItem *, id, int, id);

// Another extension that lies between the system and ours.
id addsRecognizers(UIStatusBarItemView *self, SEL selector, UIStatusBarItem *item, id data, int actions,
                   id style) {
    UIStatusBarItemView *view = original(self, selector, item, data, actions, style);
    for (Class kind : {[UILongPressGestureRecognizer class], [UISwipeGestureRecognizer class]}) {
        UIGestureRecognizer *recognizer = [kind new];
        [view addGestureRecognizer:recognizer];
        [recognizer release];
    }
    return view;
}

TEST(IndicatorView, KeepsNoOtherRecognizer) {
    harness::Sandbox sandbox;
    auto file = sandbox.path("/var/mobile/Library/Preferences/org.quillhub.PendixSettings.plist");
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << "{ enable = YES; }";
    harness::boot(harness::profile("iPhone 5"), harness::applications(), [] {
        MSHookMessageEx(objc_getClass("UIStatusBarItemView"), @selector(initWithItem:data:actions:style:),
                        reinterpret_cast<IMP>(addsRecognizers), reinterpret_cast<IMP *>(&original));
        pendix::createBadgeList();
        pendix::installHooks();
    });
    pendix::window1 = [[UIApplication sharedApplication] statusBarWindow];
    UIStatusBarItemView *own = [pendix::Spring pendix];
    ASSERT_NE(own, nil);
    ASSERT_EQ([own.gestureRecognizers count], 1u);
    EXPECT_TRUE([[own.gestureRecognizers objectAtIndex:0] isKindOfClass:[UITapGestureRecognizer class]]);
    bool others = false;
    for (UIView *view in [pendix::Spring statusBarItemViews])
        if (view != own) others = others || [view.gestureRecognizers count] == 2;
    EXPECT_TRUE(others) << "the system's own views keep theirs";
}

} // namespace
