// Proves which window and view a finger reaches, and what the view hears of it beside gesture recognisers.
#include "Harness.h"

#include "UIKit/UIKit+Further.h"

using namespace harness;

namespace {

// An outer view with an inner one that notes its touches.
struct Stage {
    UIWindow *window = makeWindow();
    UIView *outer = addView(window, CGRectMake(0, 0, 300, 300));
    TouchedView *inner = addTouchedView(outer, CGRectMake(0, 0, 100, 100), "view");
};

} // namespace

TEST(Hits, TheTopmostWindowThatTakesTheTouch) {
    UIWindow *low = makeWindow(), *high = makeWindow();
    UIView *below = addView(low, CGRectMake(0, 0, 100, 100)),
           *above = addView(high, CGRectMake(0, 0, 100, 100));
    EXPECT_EQ(sim::touchTarget({50, 50}), above);
    EXPECT_EQ(sim::touchTarget({200, 200}), high) << "a window is a view like others";
    [high setUserInteractionEnabled:NO];
    EXPECT_EQ(sim::touchTarget({50, 50}), below) << "what takes no touch lets it through";
    [high setUserInteractionEnabled:YES];
    [high setHidden:YES];
    EXPECT_EQ(sim::touchTarget({50, 50}), below);
    [low setWindowLevel:UIWindowLevelAlert];
    [high setHidden:NO];
    EXPECT_EQ(sim::touchTarget({50, 50}), below) << "a higher level lies above";
    down({50, 50});
    [low setHidden:YES], [high setHidden:YES];
    EXPECT_EQ(sim::touchTarget({50, 50}), nil);
    down({50, 50}, 2), up(2), up(); // harmless
    tapAt({50, 50});
}

TEST(Hits, AWindowThatIsNotWhereTheScreenIs) {
    UIWindow *window = makeWindow();
    [window setFrame:CGRectMake(0, 100, 375, 500)];
    UIView *view = addView(window, CGRectMake(0, 0, 100, 100));
    Witness *target = witness("tap");
    CGPoint inView = CGPointZero, inWindow = CGPointZero;
    target->also = [&](UIGestureRecognizer *tap) {
        inView = [tap locationInView:[tap view]];
        inWindow = [tap locationInView:nil];
    };
    [view setFrame:CGRectMake(20, 0, 100, 100)];
    addRecognizer<UITapGestureRecognizer>(view, [UITapGestureRecognizer class], target);
    tapAt({50, 150});
    EXPECT_TRUE(CGPointEqualToPoint(inView, CGPointMake(30, 50)));
    EXPECT_TRUE(CGPointEqualToPoint(inWindow, CGPointMake(50, 50)));
}

TEST(Delivery, FollowsTheFingerAndGoesUpTheResponderChain) {
    UIWindow *window = makeWindow();
    TouchedView *outer = addTouchedView(window, CGRectMake(0, 0, 300, 300), "outer");
    addView(outer, CGRectMake(0, 0, 100, 100)); // does nothing with touches itself
    down({50, 50});
    move({50, 50}); // no movement
    move({290, 50});
    move({370, 50});
    up();
    move({10, 10});
    EXPECT_THAT(takeNotes(), ElementsAre("outer began", "outer moved", "outer moved", "outer ended"));
}

TEST(Delivery, BesideARecogniser) {
    struct {
        const char *what;
        bool cancels, delaysBegan, delaysEnded;
        bool drags; // else taps
        Lines notes;
    } const cases[] = {
        {"a tap takes the end of the touch",
         true,
         false,
         true,
         false,
         {"view began", "view cancelled", "tap Ended"}},
        {"unless it leaves touches alone",
         false,
         false,
         true,
         false,
         {"view began", "tap Ended", "view ended"}},
        {"a tap that delays the begin takes it all", true, true, true, false, {"tap Ended"}},
        {"or hands it on when it is done",
         false,
         true,
         true,
         false,
         {"tap Ended", "view began", "view ended"}},
        {"a drag is no tap", true, false, true, true, {"view began", "view moved", "view ended"}},
        {"what was held back comes once the tap has failed",
         true,
         true,
         true,
         true,
         {"view began", "view ended"}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        Stage stage;
        UIGestureRecognizer *tap = addRecognizer(stage.outer, [UITapGestureRecognizer class], "tap");
        [tap setCancelsTouchesInView:c.cancels];
        [tap setDelaysTouchesBegan:c.delaysBegan];
        [tap setDelaysTouchesEnded:c.delaysEnded];
        down({50, 50});
        if (c.drags) move({99, 50});
        waitFor(0.1);
        up();
        EXPECT_EQ(takeNotes(), c.notes);
    }
}

TEST(Delivery, TheEndWaitsForASecondTap) {
    for (bool delays : {true, false}) {
        Stage stage;
        auto *two = static_cast<UITapGestureRecognizer *>(
            addRecognizer(stage.outer, [UITapGestureRecognizer class], "two"));
        [two setNumberOfTapsRequired:2];
        [two setDelaysTouchesEnded:delays];
        tapAt({50, 50});
        EXPECT_EQ(takeNotes(), delays ? Lines{"view began"} : (Lines{"view began", "view ended"}));
        waitFor(0.4);
        EXPECT_EQ(takeNotes(), delays ? Lines{"view ended"} : Lines{});
    }
}

TEST(Delivery, AGestureThatBeginsCancelsTheTouch) {
    Stage stage;
    addRecognizer(stage.outer, [UIPanGestureRecognizer class], "pan");
    down({50, 50});
    move({55, 50});
    move({70, 50});
    up();
    EXPECT_THAT(takeNotes(),
                ElementsAre("view began", "view moved", "view cancelled", "pan Began", "pan Ended"));
}

TEST(Delivery, SecondFingers) {
    struct {
        const char *what;
        bool multiple, exclusive;
        CGPoint second;
        Lines notes; // of the second finger
    } const cases[] = {
        {"on the same view", false, false, {60, 50}, {}},
        {"on a view that takes several", true, false, {60, 50}, {"view began", "view ended"}},
        {"on another view", false, false, {150, 50}, {"other began", "other ended"}},
        {"beside an exclusive view", false, true, {150, 50}, {}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        Stage stage;
        addTouchedView(stage.outer, CGRectMake(100, 0, 100, 100), "other");
        [stage.inner setMultipleTouchEnabled:c.multiple];
        [stage.inner setExclusiveTouch:c.exclusive];
        down({50, 50}, 1);
        takeNotes();
        down(c.second, 2);
        up(2);
        EXPECT_EQ(takeNotes(), c.notes);
        up(1);
        EXPECT_THAT(takeNotes(), ElementsAre("view ended"));
    }
}

TEST(Delivery, AViewThatIsGoneStillHearsTheEndOfItsTouch) {
    Stage stage;
    TouchedView *view = stage.inner;
    down({50, 50});
    [view removeFromSuperview];
    move({60, 50});
    up();
    EXPECT_THAT(takeNotes(), ElementsAre("view began", "view moved", "view ended"));
    EXPECT_NE(sim::touchTarget({50, 50}), view);
}

TEST(Delivery, ACancelledOrRepeatedTouch) {
    Stage stage;
    down({50, 50});
    cancel();
    EXPECT_THAT(takeNotes(), ElementsAre("view began", "view cancelled"));
    down({50, 50});
    down({60, 50});
    EXPECT_THAT(takeNotes(), ElementsAre("view began", "view cancelled", "view began"))
        << "a finger can be down once only";
    up();
    up();
    EXPECT_THAT(takeNotes(), ElementsAre("view ended"));
}

// Keeps what it sees of a touch.
@interface TouchReader : UIView {
@public
    std::vector<NSUInteger> tapCounts;
    std::vector<double> times;
    CGPoint last, previous;
    size_t fingers;
}
@end
@implementation TouchReader
- (void)touchesBegan:(NSSet *)touches withEvent:(UIEvent *)event {
    tapCounts.push_back([[touches anyObject] tapCount]);
    times.push_back([[touches anyObject] timestamp]);
    fingers = [[event allTouches] count];
}
- (void)touchesMoved:(NSSet *)touches withEvent:(UIEvent *)event {
    last = [[touches anyObject] locationInView:self];
    previous = [[touches anyObject] previousLocationInView:self];
}
@end

TEST(Touch, KnowsItsTapsPlaceAndTime) {
    TouchReader *view = [[TouchReader alloc] initWithFrame:CGRectMake(100, 100, 200, 200)];
    [makeWindow() addSubview:view];
    double start = now();
    tapAt({150, 150});
    waitFor(0.2);
    tapAt({160, 150});
    waitFor(0.2);
    tapAt({280, 150});
    waitFor(0.5);
    tapAt({280, 150});
    EXPECT_EQ(view->tapCounts, (std::vector<NSUInteger>{1, 2, 1, 1}));
    EXPECT_NEAR(view->times.at(1) - start, 0.3, 1e-6);
    down({110, 110});
    down({120, 120}, 2);
    move({115, 117});
    EXPECT_TRUE(CGPointEqualToPoint(view->previous, CGPointMake(10, 10)));
    EXPECT_TRUE(CGPointEqualToPoint(view->last, CGPointMake(15, 17)));
    EXPECT_EQ(view->fingers, 1u) << "the second finger never came to this view";
    EXPECT_EQ(sim::ongoingInteractions().size(), 2u);
    EXPECT_NE(sim::ongoingInteractions().at(0).find("finger 2 is down at (115, 117) on <TouchReader"),
              std::string::npos);
    up();
    up(2);
    EXPECT_THAT(sim::ongoingInteractions(), IsEmpty());
    [view release];
}
