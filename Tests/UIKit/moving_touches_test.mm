// Proves that views which an animation block moves take no touches unless it allows them, and are hit where
// they will be (both documented). Inferred: that this goes for whatever the block animates, through its
// delay, over all its repetitions, for all that the view holds, and for none of the views around it; and that
// a block within another answers for itself.
#include "Looks.h"

using namespace harness;

namespace {

constexpr UIViewAnimationOptions kLinear = UIViewAnimationOptionCurveLinear,
                                 kAllowed = UIViewAnimationOptionAllowUserInteraction;

// 1 at (0, 0; 100, 100) in the window, which is 0, and 2 at (0, 0; 50, 50) in it.
struct Stage {
    UIWindow *window = makeWindow();
    UIView *outer = addColored(window, CGRectMake(0, 0, 100, 100), [UIColor redColor], 1);
    UIView *inner = addColored(outer, CGRectMake(0, 0, 50, 50), [UIColor blueColor], 2);

    std::string touched(CGPoint point) const { return tagOf([window hitTest:point withEvent:nil]); }
};

void animate(double seconds, double delay, UIViewAnimationOptions options, void (^animations)(void)) {
    [UIView animateWithDuration:seconds delay:delay options:options animations:animations completion:nil];
}

using Act = void (*)(const Stage &stage);

void moveOuter(const Stage &stage, UIViewAnimationOptions options, double delay = 0) {
    UIView *view = stage.outer;
    animate(1, delay, kLinear | options, ^{ [view setFrame:CGRectMake(200, 0, 100, 100)]; });
}

} // namespace

TEST(MovingTouches, GoToWhereTheViewWillBeAndOnlyWhenAllowed) {
    struct {
        const char *what;
        Act act;
        double seconds; // after it
        CGPoint point;
        const char *touched;
    } const cases[] = {
        {"where it is seen", [](const Stage &s) { moveOuter(s, 0); }, 0.5, {175, 75}, "0"},
        {"where it will be", [](const Stage &s) { moveOuter(s, 0); }, 0.5, {275, 75}, "0"},
        {"what it holds", [](const Stage &s) { moveOuter(s, 0); }, 0.5, {225, 25}, "0"},
        {"at its end", [](const Stage &s) { moveOuter(s, 0); }, 1, {225, 25}, "2"},
        {"where it is seen, allowed", [](const Stage &s) { moveOuter(s, kAllowed); }, 0.5, {175, 75}, "0"},
        {"where it was, allowed", [](const Stage &s) { moveOuter(s, kAllowed); }, 0, {75, 75}, "0"},
        {"where it will be, allowed", [](const Stage &s) { moveOuter(s, kAllowed); }, 0, {275, 75}, "1"},
        {"what it holds, allowed", [](const Stage &s) { moveOuter(s, kAllowed); }, 0.5, {225, 25}, "2"},
        {"before the delay is over", [](const Stage &s) { moveOuter(s, 0, 1); }, 0.5, {275, 75}, "0"},
        {"after both", [](const Stage &s) { moveOuter(s, 0, 1); }, 2, {275, 75}, "1"},
        {"beside what moves in it",
         [](const Stage &s) { animate(1, 0, kLinear, ^{ [s.inner setFrame:CGRectMake(50, 50, 50, 50)]; }); },
         0.5,
         {75, 75},
         "1"},
        {"faded in",
         [](const Stage &s) {
             [s.inner setAlpha:0];
             animate(1, 0, kLinear, ^{ [s.inner setAlpha:1]; });
         },
         0.9,
         {25, 25},
         "1"},
        {"coloured",
         [](const Stage &s) {
             animate(1, 0, kLinear, ^{ [s.inner setBackgroundColor:[UIColor greenColor]]; });
         },
         0.5,
         {25, 25},
         "1"},
        {"to and fro without end",
         [](const Stage &s) {
             animate(1, 0, UIViewAnimationOptionRepeat | UIViewAnimationOptionAutoreverse,
                     ^{ [s.inner setAlpha:0.5]; });
         },
         30.5,
         {25, 25},
         "1"},
        {"in a block that allows, by one that does not",
         [](const Stage &s) {
             animate(1, 0, kAllowed, ^{ animate(1, 0, 0, ^{ [s.inner setAlpha:0.5]; }); });
         },
         0.5,
         {25, 25},
         "1"},
        {"in a block that does not, by one that allows",
         [](const Stage &s) {
             animate(1, 0, 0, ^{ animate(1, 0, kAllowed, ^{ [s.inner setAlpha:0.5]; }); });
         },
         0.5,
         {25, 25},
         "2"},
        {"in a block that changes nothing of it",
         [](const Stage &s) { animate(1, 0, 0, ^{ [s.inner setAlpha:1]; }); },
         0.5,
         {25, 25},
         "2"},
        {"when a newer block that allows them has taken over",
         [](const Stage &s) {
             moveOuter(s, 0);
             animate(1, 0, kAllowed, ^{ [s.outer setFrame:CGRectMake(0, 100, 100, 100)]; });
         },
         0.5,
         {75, 175},
         "1"},
        {"when its animations were taken off",
         [](const Stage &s) {
             moveOuter(s, 0);
             [[s.outer layer] removeAllAnimations];
         },
         0.5,
         {275, 75},
         "1"},
        {"moved by an animation of its layer",
         [](const Stage &s) {
             CABasicAnimation *animation = [CABasicAnimation animationWithKeyPath:@"opacity"];
             [animation setDuration:1];
             [animation setToValue:[NSNumber numberWithDouble:0.5]];
             [[s.inner layer] addAnimation:animation forKey:@"fade"];
         },
         0.5,
         {25, 25},
         "2"},
        {"in a window that turns",
         [](const Stage &s) {
             animate(1, 0, 0, ^{ [s.window setTransform:CGAffineTransformMakeRotation(M_PI)]; });
         },
         0.5,
         {25, 25},
         "nothing"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        Stage stage;
        c.act(stage);
        waitFor(c.seconds);
        EXPECT_EQ(stage.touched(c.point), c.touched);
    }
}

// The view under the moving one gets the finger that the moving one does not take.
TEST(MovingTouches, FallThroughToWhatLiesBelow) {
    UIWindow *window = makeWindow();
    TouchedView *below = addTouchedView(window, CGRectMake(0, 0, 100, 100), "below");
    TouchedView *moving = addTouchedView(window, CGRectMake(0, 200, 100, 100), "moving");
    animate(1, 0, 0, ^{ [moving setFrame:[below frame]]; });
    down({50, 50});
    waitFor(1);
    up();
    EXPECT_EQ(takeNotes(), (Lines{"below began", "below ended"}))
        << "a touch stays with the view that it began on";
    tapAt({50, 50});
    EXPECT_EQ(takeNotes(), (Lines{"moving began", "moving ended"}));
    down({50, 50});
    animate(1, 0, 0, ^{ [moving setFrame:CGRectMake(0, 200, 100, 100)]; });
    waitFor(0.5);
    up();
    EXPECT_EQ(takeNotes(), (Lines{"moving began", "moving ended"})) << "one that it has, it keeps";
}

TEST(MovingTouches, AreLocatedByWhereTheWindowWillBe) {
    Stage stage;
    UIWindow *window = stage.window;
    [stage.outer setUserInteractionEnabled:YES];
    UITapGestureRecognizer *tap =
        addRecognizer<UITapGestureRecognizer>(stage.outer, [UITapGestureRecognizer class], witness("tap"));
    animate(1, 0, kAllowed, ^{ [window setTransform:CGAffineTransformMakeTranslation(0, 300)]; });
    waitFor(0.5);
    CGPoint place = {0, 0};
    static_cast<Witness *>([tap delegate])->also = [&](UIGestureRecognizer *recognizer) {
        place = [recognizer locationInView:stage.outer];
    };
    tapAt({75, 375});
    EXPECT_EQ(takeNotes(), Lines{"tap Ended"});
    EXPECT_NEAR(place.x, 75, 1e-9);
    EXPECT_NEAR(place.y, 75, 1e-9);
}
