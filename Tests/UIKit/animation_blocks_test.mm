// Proves what animation blocks animate and how: the model at once, the presentation on its way, in time.
#include "Looks.h"

#include "UIKit/UIKit+Further.h"

using namespace harness;

namespace {

constexpr UIViewAnimationOptions kLinear = UIViewAnimationOptionCurveLinear;

struct Stage {
    UIWindow *window = makeWindow();
    UIView *view = addColored(window, CGRectMake(0, 0, 100, 100), [UIColor redColor]);

    CALayer *shown() const { return [[view layer] presentationLayer]; }
    double shownAlpha() const { return [shown() opacity]; }
};

void animate(double seconds, double delay, UIViewAnimationOptions options, void (^changes)(void)) {
    [UIView animateWithDuration:seconds delay:delay options:options animations:changes completion:nil];
}

std::string textOf(CGColorRef color) {
    CGFloat red = 0, green = 0, blue = 0, alpha = 0;
    [[UIColor colorWithCGColor:color] getRed:&red green:&green blue:&blue alpha:&alpha];
    return text(red) + " " + text(green) + " " + text(blue) + " " + text(alpha);
}

} // namespace

TEST(AnimationBlock, SetsTheModelAtOnceAndShowsTheWay) {
    struct {
        const char *what;
        void (*change)(UIView *);
        std::string (*read)(CALayer *);
        const char *before, *halfway, *after;
    } const cases[] = {
        {"frame, its place", [](UIView *v) { [v setFrame:CGRectMake(20, 40, 50, 10)]; },
         [](CALayer *l) { return text([l frame]); }, "0 0 100 100", "10 20 75 55", "20 40 50 10"},
        {"bounds", [](UIView *v) { [v setBounds:CGRectMake(10, 0, 50, 50)]; },
         [](CALayer *l) { return text([l bounds]); }, "0 0 100 100", "5 0 75 75", "10 0 50 50"},
        {"centre", [](UIView *v) { [v setCenter:CGPointMake(0, 0)]; },
         [](CALayer *l) { return text([l position]); }, "50 50", "25 25", "0 0"},
        {"alpha", [](UIView *v) { [v setAlpha:0]; }, [](CALayer *l) { return text([l opacity]); }, "1", "0.5",
         "0"},
        {"background", [](UIView *v) { [v setBackgroundColor:[UIColor blueColor]]; },
         [](CALayer *l) { return textOf([l backgroundColor]); }, "1 0 0 1", "0.5 0 0.5 1", "0 0 1 1"},
        {"background to clear", [](UIView *v) { [v setBackgroundColor:[UIColor clearColor]]; },
         [](CALayer *l) { return textOf([l backgroundColor]); }, "1 0 0 1", "1 0 0 0.5", "0 0 0 0"},
        {"a turn keeps the size", [](UIView *v) { [v setTransform:CGAffineTransformMakeRotation(M_PI / 2)]; },
         [](CALayer *l) { return text([l affineTransform].a) + " " + text([l affineTransform].b); }, "1 0",
         "0.707 0.707", "0 1"},
        {"the layer's own place", [](UIView *v) { [[v layer] setPosition:CGPointMake(0, 0)]; },
         [](CALayer *l) { return text([l position]); }, "50 50", "25 25", "0 0"},
        // These change at once.
        {"corners", [](UIView *v) { [[v layer] setCornerRadius:8]; },
         [](CALayer *l) { return text([l cornerRadius]); }, "0", "8", "8"},
        {"border", [](UIView *v) { [[v layer] setBorderWidth:8]; },
         [](CALayer *l) { return text([l borderWidth]); }, "0", "8", "8"},
        {"shadow", [](UIView *v) { [[v layer] setShadowOpacity:1]; },
         [](CALayer *l) { return text([l shadowOpacity]); }, "0", "1", "1"},
        {"hidden", [](UIView *v) { [v setHidden:YES]; }, [](CALayer *l) { return text([l isHidden]); }, "0",
         "1", "1"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        Stage stage;
        auto change = c.change;
        CALayer *model = [stage.view layer];
        EXPECT_EQ(c.read(model), c.before);
        animate(1, 0, kLinear, ^{ change(stage.view); });
        EXPECT_EQ(c.read(model), c.after);
        waitFor(0.5);
        EXPECT_EQ(c.read(stage.shown()), c.halfway);
        EXPECT_EQ(c.read(model), c.after);
        waitFor(0.5);
        EXPECT_EQ(c.read(stage.shown()), c.after);
        EXPECT_EQ([model animationKeys], nil);
    }
}

TEST(AnimationBlock, FollowsItsCurveItsDelayAndItsOptions) {
    constexpr UIViewAnimationOptions kBack = kLinear | UIViewAnimationOptionAutoreverse;
    struct {
        const char *what;
        double delay;
        UIViewAnimationOptions options;
        double at, alpha; // seconds after the start; alpha goes from 1 to 0
    } const cases[] = {
        {"evenly", 0, kLinear, 0.25, 0.75},
        {"slowly off", 0, UIViewAnimationOptionCurveEaseIn, 0.25, 0.9065},
        {"slowly in", 0, UIViewAnimationOptionCurveEaseOut, 0.25, 0.6219},
        {"both", 0, UIViewAnimationOptionCurveEaseInOut, 0.25, 0.8708},
        {"both, halfway", 0, UIViewAnimationOptionCurveEaseInOut, 0.5, 0.5},
        {"before the delay is over", 0.5, kLinear, 0.4, 1},
        {"after it", 0.5, kLinear, 0.75, 0.75},
        {"at its end", 0.5, kLinear, 1.5, 0},
        {"there", 0, kBack, 0.75, 0.25},
        {"and back", 0, kBack, 1.75, 0.75},
        {"and then as the model says", 0, kBack, 2, 0},
        {"over and over", 0, kLinear | UIViewAnimationOptionRepeat, 7.25, 0.75},
        {"to and fro", 0, kBack | UIViewAnimationOptionRepeat, 7.25, 0.25},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        Stage stage;
        animate(1, c.delay, c.options, ^{ [stage.view setAlpha:0]; });
        EXPECT_EQ(stage.shownAlpha(), 1);
        waitFor(c.at);
        EXPECT_NEAR(stage.shownAlpha(), c.alpha, 0.0001);
        [[stage.view layer] removeAllAnimations];
        EXPECT_EQ(stage.shownAlpha(), 0);
    }
}

TEST(AnimationBlock, WithoutOptionsEasesInAndOut) {
    Stage stage;
    [UIView animateWithDuration:1 animations:^{ [stage.view setAlpha:0]; }];
    waitFor(0.25);
    EXPECT_NEAR(stage.shownAlpha(), 0.8708, 0.0001);
}

TEST(AnimationBlock, ANewerOneStartsWhereTheOlderHasCome) {
    Stage stage;
    animate(1, 0, kLinear, ^{ [stage.view setCenter:CGPointMake(150, 50)]; });
    waitFor(0.5);
    animate(1, 0, kLinear, ^{ [stage.view setCenter:CGPointMake(50, 50)]; });
    EXPECT_EQ(text([stage.shown() position]), "100 50");
    waitFor(0.5);
    EXPECT_EQ(text([stage.shown() position]), "75 50");
    waitFor(0.5);
    EXPECT_EQ(text([stage.shown() position]), "50 50");
}

TEST(AnimationBlock, WithinAnotherTakesTimeAndCurveFromIt) {
    Stage stage;
    UIView *other = addColored(stage.window, CGRectMake(0, 0, 10, 10), [UIColor blueColor]);
    UIView *third = addColored(stage.window, CGRectMake(0, 0, 10, 10), [UIColor blueColor]);
    animate(2, 0, kLinear, ^{
        [stage.view setAlpha:0];
        animate(0.2, 0, UIViewAnimationOptionCurveEaseIn, ^{ [other setAlpha:0]; });
        [UIView performWithoutAnimation:^{ [third setAlpha:0]; }];
    });
    auto alpha = [](UIView *view) { return double([[[view layer] presentationLayer] opacity]); };
    EXPECT_EQ(alpha(third), 0);
    waitFor(1);
    EXPECT_EQ(alpha(stage.view), 0.5);
    EXPECT_EQ(alpha(other), 0.5);
}

TEST(AnimationBlock, DoesNotAnimateWhileAnimationsAreOff) {
    Stage stage;
    [UIView performWithoutAnimation:^{
        [UIView animateWithDuration:1
            animations:^{ [stage.view setAlpha:0]; }
            completion:^(BOOL finished) { note(finished ? "finished" : "cut short"); }];
    }];
    EXPECT_EQ(stage.shownAlpha(), 0);
    waitFor(0);
    EXPECT_THAT(takeNotes(), ElementsAre("finished"));
    [UIView animateWithDuration:1 animations:^{ [stage.view setAlpha:1]; }];
    EXPECT_EQ(stage.shownAlpha(), 0) << "they are on again";
}

TEST(AnimationBlock, CarriesTheContentOfAViewAlong) {
    Stage stage;
    UIView *inner = addColored(stage.view, CGRectMake(0, 0, 100, 50), [UIColor blueColor]);
    [inner setAutoresizingMask:UIViewAutoresizingFlexibleWidth];
    animate(1, 0, kLinear, ^{ [stage.view setFrame:CGRectMake(100, 0, 200, 100)]; });
    EXPECT_EQ(text([inner frame]), "0 0 200 50");
    waitFor(0.5);
    EXPECT_EQ(text([[[inner layer] presentationLayer] frame]), "0 0 150 50");
    EXPECT_EQ(colorAt({49, 25}), "black");
    EXPECT_EQ(colorAt({51, 25}), "blue");
    EXPECT_EQ(colorAt({199, 75}), "red");
    EXPECT_EQ(colorAt({201, 75}), "black");
}
