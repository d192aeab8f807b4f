// Proves what an animation that is added to a layer shows, how long, and what its delegate hears.
#include "Looks.h"

#include "UIKit/UIKit+Further.h"

using namespace harness;

// Notes the key path, when, since it was made, the animation stopped, and how.
@interface AnimationWitness : NSObject {
@public
    double start;
}
@end
@implementation AnimationWitness
- (void)animationDidStop:(CAAnimation *)animation finished:(BOOL)finished {
    note([[static_cast<CAPropertyAnimation *>(animation) keyPath] UTF8String] + (" " + text(now() - start)) +
         (finished ? " finished" : " cut short"));
}
@end

namespace {

struct Stage {
    UIWindow *window = makeWindow();
    UIView *view = addColored(window, CGRectMake(0, 0, 100, 100), [UIColor redColor]);
    CALayer *layer = [view layer];
};

NSNumber *number(double value) { return [NSNumber numberWithDouble:value]; }

// From 0 to 10 in a second, unless it is told otherwise.
CABasicAnimation *rounding() {
    CABasicAnimation *animation = [CABasicAnimation animationWithKeyPath:@"cornerRadius"];
    [animation setFromValue:number(0)];
    [animation setToValue:number(10)];
    [animation setDuration:1];
    return animation;
}

AnimationWitness *animationWitness() {
    AnimationWitness *result = [[AnimationWitness new] autorelease];
    result->start = now();
    return result;
}

double shownRadius(CALayer *layer) { return [[layer presentationLayer] cornerRadius]; }

} // namespace

TEST(ExplicitAnimation, IsInEffectWhileItsTimingSays) {
    // On a layer whose own radius is 4. Times are since the animation was added.
    struct {
        const char *what;
        void (*set)(CABasicAnimation *);
        std::vector<std::pair<double, double>> shown; // after those seconds
    } const cases[] = {
        {"as it is", [](CABasicAnimation *) {}, {{0, 0}, {0.5, 5}, {1, 4}}},
        {"without a duration", [](CABasicAnimation *a) { [a setDuration:0]; }, {{0.125, 5}, {0.25, 4}}},
        {"there and back",
         [](CABasicAnimation *a) { [a setAutoreverses:YES]; },
         {{0.7, 7}, {1.3, 7}, {2, 4}}},
        {"three times", [](CABasicAnimation *a) { [a setRepeatCount:3]; }, {{1.2, 2}, {2.9, 9}, {3, 4}}},
        {"one and a half times",
         [](CABasicAnimation *a) { [a setRepeatCount:1.5]; },
         {{1.4, 4}, {1.45, 4.5}, {1.5, 4}}},
        {"without end", [](CABasicAnimation *a) { [a setRepeatCount:HUGE_VALF]; }, {{99.5, 5}}},
        {"slowly off",
         [](CABasicAnimation *a) {
             [a setTimingFunction:[CAMediaTimingFunction functionWithName:kCAMediaTimingFunctionEaseIn]];
         },
         {{0.25, 0.935}}},
        {"later",
         [](CABasicAnimation *a) { [a setBeginTime:CACurrentMediaTime() + 1]; },
         {{0.5, 4}, {1.5, 5}, {2, 4}}},
        {"held before",
         [](CABasicAnimation *a) {
             [a setBeginTime:CACurrentMediaTime() + 1];
             [a setFillMode:kCAFillModeBackwards];
         },
         {{0.5, 0}, {1.5, 5}, {2, 4}}},
        {"kept, but without effect", [](CABasicAnimation *a) { [a setRemovedOnCompletion:NO]; }, {{1, 4}}},
        {"removed, whatever would fill",
         [](CABasicAnimation *a) { [a setFillMode:kCAFillModeForwards]; },
         {{1, 4}}},
        {"held after",
         [](CABasicAnimation *a) {
             [a setFillMode:kCAFillModeForwards];
             [a setRemovedOnCompletion:NO];
         },
         {{0.5, 5}, {1, 10}, {100, 10}}},
        {"there and back and held",
         [](CABasicAnimation *a) {
             [a setFillMode:kCAFillModeBoth];
             [a setRemovedOnCompletion:NO];
             [a setAutoreverses:YES];
         },
         {{1, 10}, {2, 0}, {3, 0}}},
        {"from the layer's own value", [](CABasicAnimation *a) { [a setFromValue:nil]; }, {{0.5, 7}}},
        {"to it", [](CABasicAnimation *a) { [a setToValue:nil]; }, {{0.5, 2}}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        Stage stage;
        [stage.layer setCornerRadius:4];
        CABasicAnimation *animation = rounding();
        c.set(animation);
        [stage.layer addAnimation:animation forKey:@"corner"];
        double start = now();
        for (auto [seconds, radius] : c.shown) {
            waitFor(start + seconds - now());
            EXPECT_NEAR(shownRadius(stage.layer), radius, 0.0005) << "after " << seconds;
            EXPECT_EQ([stage.layer cornerRadius], 4) << "the model does not know";
        }
    }
}

TEST(ExplicitAnimation, AnimatesWhatItsKeyPathNames) {
    // Halfway between the values.
    struct {
        NSString *keyPath;
        id from, to;
        std::string (*read)(CALayer *);
        const char *shown;
    } const cases[] = {
        {@"opacity", number(1), number(0.5), [](CALayer *l) { return text([l opacity]); }, "0.75"},
        {@"borderWidth", number(0), number(3), [](CALayer *l) { return text([l borderWidth]); }, "1.5"},
        {@"shadowRadius", number(0), number(8), [](CALayer *l) { return text([l shadowRadius]); }, "4"},
        {@"shadowOpacity", number(0), number(1), [](CALayer *l) { return text([l shadowOpacity]); }, "0.5"},
        {@"position.x", number(0), number(30), [](CALayer *l) { return text([l position]); }, "15 50"},
        {@"position.y", number(0), number(30), [](CALayer *l) { return text([l position]); }, "50 15"},
        {@"transform.scale", number(1), number(3), [](CALayer *l) { return text([l frame]); },
         "-50 -50 200 200"},
        {@"transform.rotation", number(0), number(M_PI),
         [](CALayer *l) { return text([l affineTransform].b); }, "1"},
        {@"transform.rotation.z", number(0), number(M_PI * 2),
         [](CALayer *l) { return text([l affineTransform].a); }, "-1"},
        {@"backgroundColor", (id)[[UIColor blackColor] CGColor], (id)[[UIColor whiteColor] CGColor],
         [](CALayer *l) {
             CGFloat red = 0;
             [[UIColor colorWithCGColor:[l backgroundColor]] getRed:&red
                                                              green:nullptr
                                                               blue:nullptr
                                                              alpha:nullptr];
             return text(red);
         },
         "0.5"},
        {@"no.such.path", number(0), number(1), [](CALayer *l) { return text([l frame]); }, "0 0 100 100"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE([c.keyPath UTF8String]);
        Stage stage;
        CABasicAnimation *animation = [CABasicAnimation animationWithKeyPath:c.keyPath];
        [animation setFromValue:c.from];
        [animation setToValue:c.to];
        [animation setDuration:1];
        [stage.layer addAnimation:animation forKey:nil];
        waitFor(0.5);
        EXPECT_EQ(c.read([stage.layer presentationLayer]), c.shown);
    }
}

TEST(ExplicitAnimation, TurnsAHandAroundItsLowerEndForEver) {
    Stage stage;
    UIView *hand = addColored(stage.window, CGRectMake(199, 150, 2, 50), [UIColor whiteColor]);
    [[hand layer] setAnchorPoint:CGPointMake(0.5, 1)];
    [hand setCenter:CGPointMake(200, 200)];
    CABasicAnimation *turn = [CABasicAnimation animationWithKeyPath:@"transform.rotation.z"];
    [turn setFromValue:number(M_PI / 2)];
    [turn setToValue:number(M_PI / 2 + 2 * M_PI)];
    [turn setDuration:60];
    [turn setRepeatCount:HUGE_VALF];
    [[hand layer] addAnimation:turn forKey:@"rotate"];
    struct {
        double seconds;
        CGPoint tip;
    } const way[] = {{0, {240, 200}}, {15, {200, 240}}, {15, {160, 200}}, {15, {200, 160}}, {90, {200, 240}}};
    for (const auto &step : way) {
        waitFor(step.seconds);
        EXPECT_EQ(colorAt({step.tip.x - 0.5, step.tip.y - 0.5}), "white") << text(step.tip);
    }
}

TEST(ExplicitAnimation, ItsKeyTellsItFromOthers) {
    Stage stage;
    CALayer *layer = stage.layer;
    CABasicAnimation *second = rounding(), *fade = [CABasicAnimation animationWithKeyPath:@"opacity"];
    [fade setToValue:number(0)];
    [fade setDuration:1];
    [second setFromValue:number(20)];
    [second setToValue:number(30)];
    [layer addAnimation:rounding() forKey:@"first"];
    [layer addAnimation:fade forKey:@"fade"];
    waitFor(0.5);
    EXPECT_EQ(shownRadius(layer), 5) << "two of different properties run side by side";
    EXPECT_EQ([[layer presentationLayer] opacity], 0.5f);
    [layer addAnimation:second forKey:@"second"];
    EXPECT_EQ(shownRadius(layer), 20) << "of two of one property the newer shows";
    [layer addAnimation:rounding() forKey:nil];
    EXPECT_EQ(shownRadius(layer), 0);
    NSArray *keys = [NSArray arrayWithObjects:@"first", @"fade", @"second", nil];
    EXPECT_TRUE([[layer animationKeys] isEqual:keys]);
    [layer addAnimation:rounding() forKey:@"fade"];
    EXPECT_EQ([[layer presentationLayer] opacity], 1) << "one of the same key takes the other's place";
    [layer removeAnimationForKey:@"first"];
    [layer removeAnimationForKey:@"nobody"];
    EXPECT_EQ([[layer animationKeys] count], 2u);
    EXPECT_EQ([layer animationForKey:@"first"], nil);
    [layer removeAllAnimations];
    EXPECT_EQ([layer animationKeys], nil);
    EXPECT_EQ(shownRadius(layer), 0);
}

TEST(ExplicitAnimation, IsCopiedWhenItIsAdded) {
    Stage stage;
    CABasicAnimation *animation = rounding();
    [stage.layer addAnimation:animation forKey:@"corner"];
    [animation setToValue:number(100)];
    waitFor(0.5);
    EXPECT_EQ(shownRadius(stage.layer), 5);
    [stage.layer addAnimation:animation forKey:@"corner"];
    waitFor(0.5);
    EXPECT_EQ(shownRadius(stage.layer), 50) << "one object serves many times";
    auto *held = static_cast<CABasicAnimation *>([stage.layer animationForKey:@"corner"]);
    EXPECT_NE(held, animation);
    EXPECT_TRUE([[held toValue] isEqual:number(100)] && [[held keyPath] isEqual:@"cornerRadius"]);
}

TEST(ExplicitAnimation, SurvivesWhatABlockSetsInTheMeantime) {
    Stage stage;
    [UIView animateWithDuration:0.25
                     animations:^{
                         [stage.layer addAnimation:rounding() forKey:@"cornerRadius"];
                         [stage.layer setCornerRadius:10];
                     }];
    waitFor(0.5);
    EXPECT_EQ(shownRadius(stage.layer), 5);
    waitFor(0.5);
    EXPECT_EQ(shownRadius(stage.layer), 10);
}

TEST(ExplicitAnimation, TellsItsDelegateHowItEnded) {
    // The animation starts at 0 and lasts a second; `meddle` runs after a quarter of it.
    void (*const kNothing)(const Stage &) = [](const Stage &) {};
    struct {
        const char *what;
        BOOL removed;
        void (*meddle)(const Stage &);
        Lines heard, later; // within two seconds, and when the layer loses what it then has
    } const cases[] = {
        {"it runs out", YES, kNothing, {"cornerRadius 1 finished"}, {}},
        {"it stays", NO, kNothing, {"cornerRadius 1 finished"}, {}},
        {"its key is removed",
         NO,
         [](const Stage &s) { [s.layer removeAnimationForKey:@"corner"]; },
         {"cornerRadius 0.25 cut short"},
         {}},
        {"another takes its key",
         YES,
         [](const Stage &s) { [s.layer addAnimation:rounding() forKey:@"corner"]; },
         {"cornerRadius 0.25 cut short"},
         {}},
        {"the view goes",
         YES,
         [](const Stage &s) { [s.view removeFromSuperview]; },
         {"cornerRadius 0.25 cut short"},
         {}},
        {"it never ends",
         YES,
         [](const Stage &s) {
             CABasicAnimation *endless = rounding();
             [endless setRepeatCount:HUGE_VALF];
             [endless setKeyPath:@"opacity"];
             [endless setDelegate:animationWitness()];
             [s.layer addAnimation:endless forKey:nil];
         },
         {"cornerRadius 1 finished"},
         {"opacity 1.75 cut short"}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        Stage stage;
        CABasicAnimation *animation = rounding();
        [animation setRemovedOnCompletion:c.removed];
        [animation setDelegate:animationWitness()];
        [stage.layer addAnimation:animation forKey:@"corner"];
        waitFor(0.25);
        c.meddle(stage);
        waitFor(1.75);
        EXPECT_EQ(takeNotes(), c.heard);
        [stage.layer removeAllAnimations];
        EXPECT_EQ(takeNotes(), c.later);
    }
}

TEST(ExplicitAnimation, OfALayerThatIsNowhereEndsWithTheTurn) {
    CALayer *layer = [CALayer layer];
    CABasicAnimation *animation = rounding();
    [animation setDelegate:animationWitness()];
    [layer addAnimation:animation forKey:@"corner"];
    waitFor(0);
    EXPECT_EQ([layer animationKeys], nil);
    EXPECT_THAT(takeNotes(), ElementsAre("cornerRadius 0 cut short"));
    [layer addAnimation:animation forKey:@"corner"];
    [[makeWindow() layer] addSublayer:layer];
    waitFor(0.5);
    EXPECT_EQ(shownRadius(layer), 5) << "unless it is somewhere by then";
}
