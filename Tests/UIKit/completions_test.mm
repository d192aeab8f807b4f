// Proves when the completion of an animation block is called, and what it is told.
#include "Looks.h"

#include "UIKit/QuartzCore/CALayer+Further.h"

using namespace harness;

namespace {

struct Stage {
    UIWindow *window = makeWindow();
    UIView *outer = addView(window, CGRectMake(0, 0, 200, 200));
    UIView *view = addView(outer, CGRectMake(0, 0, 100, 100));
};

// Notes "name 0.5 finished" or "name 0.5 cut short"; the time is since `start`.
void (^completion(const char *name, double start))(BOOL) {
    return [[^(BOOL finished) {
        note(std::string(name) + " " + text(now() - start) + (finished ? " finished" : " cut short"));
    } copy] autorelease];
}

void fade(UIView *view, CGFloat alpha, double seconds, void (^done)(BOOL)) {
    [UIView animateWithDuration:seconds animations:^{ [view setAlpha:alpha]; } completion:done];
}

} // namespace

TEST(Completion, SaysWhetherTheAnimationRanItsCourse) {
    // A fade of a second; `meddle` runs after a quarter of it.
    struct {
        const char *what;
        void (*meddle)(const Stage &);
        const char *told;
    } const cases[] = {
        {"it runs out", [](const Stage &) {}, "it 1 finished"},
        {"a newer one of the same property", [](const Stage &s) { fade(s.view, 0.5, 2, nil); },
         "it 0.25 cut short"},
        {"a newer one to the same value", [](const Stage &s) { fade(s.view, 0, 2, nil); }, "it 1 finished"},
        {"one of another property",
         [](const Stage &s) {
             [UIView animateWithDuration:2 animations:^{ [s.view setCenter:CGPointMake(0, 0)]; }];
         },
         "it 1 finished"},
        {"the view is removed", [](const Stage &s) { [s.view removeFromSuperview]; }, "it 0.25 cut short"},
        {"the view around it is removed", [](const Stage &s) { [s.outer removeFromSuperview]; },
         "it 0.25 cut short"},
        {"moved within the window", [](const Stage &s) { [s.window addSubview:s.view]; }, "it 1 finished"},
        {"moved to another window", [](const Stage &s) { [makeWindow() addSubview:s.view]; },
         "it 0.25 cut short"},
        {"its animations are removed", [](const Stage &s) { [[s.view layer] removeAllAnimations]; },
         "it 0.25 cut short"},
        {"by their key", [](const Stage &s) { [[s.view layer] removeAnimationForKey:@"opacity"]; },
         "it 0.25 cut short"},
        {"the window is hidden", [](const Stage &s) { [s.window setHidden:YES]; }, "it 1 finished"},
        {"the view is hidden", [](const Stage &s) { [s.view setHidden:YES]; }, "it 1 finished"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        Stage stage;
        fade(stage.view, 0, 1, completion("it", now()));
        EXPECT_THAT(takeNotes(), IsEmpty()) << "never within the call";
        waitFor(0.25);
        c.meddle(stage);
        waitFor(3);
        EXPECT_THAT(takeNotes(), ElementsAre(c.told));
    }
}

TEST(Completion, ComesAtOnceWhenThereIsNothingToWaitFor) {
    UIView *loose = [[UIView new] autorelease];
    struct {
        const char *what;
        double seconds, delay;
        std::function<void(const Stage &)> change;
    } const cases[] = {
        {"no time", 0, 0, [](const Stage &s) { [s.view setAlpha:0]; }},
        {"nothing in it", 1, 0, [](const Stage &) {}},
        {"nothing changes", 1, 0, [](const Stage &s) { [s.view setAlpha:1]; }},
        {"nothing that can be animated", 1, 0, [](const Stage &s) { [s.view setHidden:YES]; }},
        {"in no window", 1, 0, [=](const Stage &) { [loose setAlpha:0]; }},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        Stage stage;
        auto change = c.change;
        [UIView animateWithDuration:c.seconds
                              delay:c.delay
                            options:0
                         animations:^{ change(stage); }
                         completion:completion("it", now())];
        EXPECT_THAT(takeNotes(), IsEmpty()) << "but after the call";
        waitFor(0);
        EXPECT_THAT(takeNotes(), ElementsAre("it 0 finished"));
    }
}

TEST(Completion, WaitsForTheLastOfWhatTheBlockStarted) {
    Stage stage;
    double start = now();
    [UIView animateWithDuration:1
                          delay:0.5
                        options:0
                     animations:^{
                         [stage.view setAlpha:0];
                         [stage.outer setCenter:CGPointMake(0, 0)];
                     }
                     completion:completion("both", start)];
    waitFor(0.75);
    fade(stage.view, 1, 0.25, completion("back", start));
    EXPECT_THAT(takeNotes(), IsEmpty());
    waitFor(2);
    EXPECT_THAT(takeNotes(), ElementsAre("back 1 finished", "both 1.5 cut short"));
}

TEST(Completion, ComesInTheOrderOfTheEndsThenOfTheStarts) {
    Stage stage;
    double start = now();
    UIView *third = addView(stage.window, CGRectZero);
    fade(stage.view, 0, 1, completion("first", start));
    fade(stage.outer, 0, 0.5, completion("short", start));
    fade(third, 0, 1, completion("second", start));
    [NSTimer scheduledTimerWithTimeInterval:1
                                     target:witness("timer")
                                   selector:@selector(actWithoutArgument)
                                   userInfo:nil
                                    repeats:NO];
    waitFor(1);
    EXPECT_THAT(takeNotes(),
                ElementsAre("short 0.5 finished", "timer", "first 1 finished", "second 1 finished"));
}

TEST(Completion, StartsTheNextWithoutAGap) {
    Stage stage;
    double start = now();
    UIView *view = stage.view;
    [UIView animateWithDuration:0.1
        animations:^{ [view setCenter:CGPointMake(0, 50)]; }
        completion:^(BOOL finished) {
            completion("there", start)(finished);
            [UIView animateWithDuration:0.1
                             animations:^{ [view setCenter:CGPointMake(50, 50)]; }
                             completion:completion("back", start)];
        }];
    waitFor(0.15);
    EXPECT_EQ(text([[[view layer] presentationLayer] position]), "25 50");
    waitFor(1);
    EXPECT_THAT(takeNotes(), ElementsAre("there 0.1 finished", "back 0.2 finished"));
}

TEST(Completion, OfANestedBlockComesWithTheOuterOne) {
    Stage stage;
    double start = now();
    [UIView animateWithDuration:1
                     animations:^{
                         fade(stage.view, 0, 0.1, completion("inner", start));
                         [stage.outer setAlpha:0];
                     }
                     completion:completion("outer", start)];
    waitFor(2);
    EXPECT_THAT(takeNotes(), ElementsAre("inner 1 finished", "outer 1 finished"));
}

TEST(Completion, OfARepeatingBlockComesWhenItIsEnded) {
    Stage stage;
    [UIView animateWithDuration:0.1
                          delay:0
                        options:UIViewAnimationOptionRepeat | UIViewAnimationOptionAutoreverse
                     animations:^{ [stage.view setAlpha:0]; }
                     completion:completion("it", now())];
    waitFor(10);
    EXPECT_THAT(takeNotes(), IsEmpty());
    [stage.view removeFromSuperview];
    waitFor(0);
    EXPECT_THAT(takeNotes(), ElementsAre("it 10 cut short"));
}

TEST(Completion, MayRemoveTheViewAndKeepsWhatItNeedsAlive) {
    Stage stage;
    __block UIView *kept = [[UIView new] autorelease];
    fade(stage.view, 0, 1, ^(BOOL) {
        [stage.view removeFromSuperview];
        [stage.outer addSubview:kept];
    });
    waitFor(2);
    EXPECT_EQ([[stage.outer subviews] count], 1u);
    EXPECT_EQ([stage.view superview], nil);
}
