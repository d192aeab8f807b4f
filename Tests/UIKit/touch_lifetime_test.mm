// Proves that touches, recognisers, scroll views and controls go when nobody holds them any more, whatever a
// finger was doing, and that nothing refers to them afterwards.
#include "Harness.h"

#include "Runtime/Objc/Census.hpp"
#include "UIKit/Controls/UIControl+Further.h"

using namespace harness;

namespace {

const char *const kClasses[] = {"UIWindow",
                                "UIView",
                                "UIScrollView",
                                "UIImageView",
                                "UIButton",
                                "UIButtonLabel",
                                "UIViewController",
                                "UITouch",
                                "UITapGestureRecognizer",
                                "UIPanGestureRecognizer",
                                "UILongPressGestureRecognizer",
                                "UISwipeGestureRecognizer",
                                "UIScrollViewPanGestureRecognizer",
                                "UIScrollViewDelayedTouchesBeganGestureRecognizer",
                                "CALayer"};

// A window with one of everything: a scroll view with an item, and a button below it.
UIWindow *furnishedWindow(Witness *target) {
    UIWindow *window = [[UIWindow alloc] initWithFrame:CGRectMake(0, 0, 375, 667)];
    UIViewController *controller = [UIViewController new];
    [window setRootViewController:controller];
    [controller release];
    UIScrollView *scrollView = [[UIScrollView alloc] initWithFrame:CGRectMake(0, 0, 300, 200)];
    [scrollView setContentSize:CGSizeMake(900, 200)];
    [[controller view] addSubview:scrollView];
    [scrollView release];
    UIView *item = addView(scrollView, CGRectMake(0, 0, 300, 200));
    auto *tap = addRecognizer<UITapGestureRecognizer>(item, [UITapGestureRecognizer class], target);
    auto *press =
        addRecognizer<UILongPressGestureRecognizer>(item, [UILongPressGestureRecognizer class], target);
    auto *pan = addRecognizer<UIPanGestureRecognizer>(item, [UIPanGestureRecognizer class], target);
    addRecognizer<UISwipeGestureRecognizer>(item, [UISwipeGestureRecognizer class], target);
    [press requireGestureRecognizerToFail:tap];
    [tap requireGestureRecognizerToFail:pan];
    UIButton *button = [UIButton buttonWithType:UIButtonTypeSystem];
    [button setFrame:CGRectMake(0, 300, 100, 40)];
    [button setTitle:@"Title" forState:UIControlStateNormal];
    [button setTitleColor:[UIColor redColor] forState:UIControlStateHighlighted];
    [[controller view] addSubview:button];
    [window setHidden:NO];
    return window;
}

struct Case {
    const char *what;
    std::function<void()> before, after; // the window goes
};

const CGPoint kItem = {150, 100}, kButton = {50, 320};

const Case kCases[] = {
    {"nothing happens", [] {}, [] {}},
    {"gestures that are over",
     [] {
         tapAt(kItem);
         dragFromTo(kItem, {50, 100}, 0.2);
         hold(kItem, 1);
         tapAt(kButton);
         waitFor(2);
     },
     [] {}},
    {"a finger on the item", [] { down(kItem); }, [] { up(); }},
    {"a finger that pans",
     [] {
         down(kItem), glide(kItem, {50, 100}, 0.1);
     },
     [] {
         glide({50, 100}, kItem, 0.1), up();
     }},
    {"a long press", [] { down(kItem), waitFor(1); }, [] { up(); }},
    {"a press that waits", [] { down(kItem), waitFor(0.6); }, [] { waitFor(1), up(); }},
    {"content that decelerates",
     [] {
         flingFromTo(kItem, {50, 100}, 0.1);
     },
     [] { waitFor(1); }},
    {"a finger on the button", [] { down(kButton); },
     [] {
         move({60, 330}), up();
     }},
    {"two fingers", [] { down(kItem, 1), down(kButton, 2); }, [] { up(2), up(1); }},
};

} // namespace

TEST(TouchLifetime, EverythingGoesWithItsWindow) {
    for (bool scrollsAlone : {false, true}) {
        for (const auto &c : kCases) {
            SCOPED_TRACE(c.what);
            @autoreleasepool {
                Witness *target = witness("target");
                target->runsTogether = !scrollsAlone;
                UIWindow *window = furnishedWindow(target);
                c.before();
                [window setHidden:YES];
                [window setRootViewController:nil];
                [window release];
                waitFor(0);
                c.after();
            }
            for (const char *name : kClasses) EXPECT_EQ(sim::liveCount(name), 0u) << name;
            EXPECT_THAT(sim::ongoingInteractions(), IsEmpty());
        }
    }
}

TEST(TouchLifetime, ARecogniserMayOutliveTheOneThatItWaitsFor) {
    UIView *view = addView(makeWindow(), CGRectMake(0, 0, 300, 300));
    auto *one = addRecognizer(view, [UITapGestureRecognizer class], "one");
    @autoreleasepool {
        auto *two =
            static_cast<UITapGestureRecognizer *>(addRecognizer(view, [UITapGestureRecognizer class], "two"));
        [two setNumberOfTapsRequired:2];
        [one requireGestureRecognizerToFail:two];
        tapAt({50, 50});
        [view removeGestureRecognizer:two];
    }
    waitFor(0);
    EXPECT_THAT(takeNotes(), ElementsAre("one Ended")) << "and waits no longer";
    tapAt({50, 50});
    EXPECT_THAT(takeNotes(), ElementsAre("one Ended"));
}

TEST(TouchLifetime, AnActionMayRemoveWhatItBelongsTo) {
    @autoreleasepool {
        UIView *view = addView(makeWindow(), CGRectMake(0, 0, 300, 300));
        Witness *target = witness("tap");
        target->also = [=](UIGestureRecognizer *tap) {
            [view removeGestureRecognizer:tap];
            [view removeFromSuperview];
        };
        addRecognizer<UITapGestureRecognizer>(view, [UITapGestureRecognizer class], target);
        addRecognizer(view, [UITapGestureRecognizer class], "other");
        tapAt({50, 50});
    }
    EXPECT_THAT(takeNotes(), ElementsAre("tap Ended"));
    EXPECT_EQ(sim::liveCount("UITapGestureRecognizer"), 0u);
    EXPECT_EQ(sim::liveCount("UITouch"), 0u);
}
