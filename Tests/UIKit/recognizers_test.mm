// Proves when each kind of gesture recogniser takes a movement for its gesture, and what it tells of it.
#include "Harness.h"

#include "UIKit/UIKit+Further.h"

#include <cmath>

using namespace harness;

namespace {

UIView *canvas() { return addView(makeWindow(), CGRectMake(0, 0, 375, 667)); }

// What the finger does, and whether the one recogniser of the view then recognises.
struct Attempt {
    const char *what;
    std::function<void()> finger;
    bool recognized;
};

void tryAll(const std::vector<Attempt> &attempts, const char *expected) {
    for (const auto &attempt : attempts) {
        SCOPED_TRACE(attempt.what);
        attempt.finger();
        waitFor(1);
        Lines notes = takeNotes();
        EXPECT_EQ(std::count(notes.begin(), notes.end(), expected), attempt.recognized ? 1 : 0);
    }
}

// Down, to a place at once, and up.
void nudge(CGFloat dx, CGFloat dy) {
    down({100, 100});
    waitFor(0.05);
    move({100 + dx, 100 + dy});
    waitFor(0.05);
    up();
}

void twoTaps(double pause, CGPoint second) {
    tapAt({100, 100});
    waitFor(pause);
    tapAt(second);
}

void twoFingers() {
    down({100, 100}, 1);
    down({200, 100}, 2);
    waitFor(0.1);
    up(1);
    up(2);
}

} // namespace

TEST(Tap, TakesAShortPressThatStays) {
    addRecognizer(canvas(), [UITapGestureRecognizer class], "tap");
    tryAll({{"a tap",
             [] {
                 tapAt({100, 100});
             },
             true},
            {"as short as can be",
             [] {
                 hold({100, 100}, 0);
             },
             true},
            {"a slow one",
             [] {
                 hold({100, 100}, 0.7);
             },
             true},
            {"too slow",
             [] {
                 hold({100, 100}, 0.8);
             },
             false},
            {"a shaky one", [] { nudge(20, 20); }, true},
            {"too far", [] { nudge(50, 0); }, false},
            {"two fingers", twoFingers, false}},
           "tap Ended");
}

TEST(Tap, CountsTapsAndFingers) {
    UIView *view = canvas();
    auto *tap =
        static_cast<UITapGestureRecognizer *>(addRecognizer(view, [UITapGestureRecognizer class], "tap"));
    [tap setNumberOfTapsRequired:2];
    tryAll({{"one",
             [] {
                 tapAt({100, 100});
             },
             false},
            {"two",
             [] {
                 twoTaps(0.2, {110, 100});
             },
             true},
            {"a long pause",
             [] {
                 twoTaps(0.4, {110, 100});
             },
             false},
            {"in two places",
             [] {
                 twoTaps(0.2, {200, 100});
             },
             false}},
           "tap Ended");
    [tap setNumberOfTapsRequired:1];
    [tap setNumberOfTouchesRequired:2];
    tryAll({{"one finger",
             [] {
                 tapAt({100, 100});
             },
             false},
            {"two fingers", twoFingers, true}},
           "tap Ended");
}

TEST(LongPress, BeginsOnceHeldStillLongEnough) {
    auto *press = static_cast<UILongPressGestureRecognizer *>(
        addRecognizer(canvas(), [UILongPressGestureRecognizer class], "press"));
    tryAll({{"long enough",
             [] {
                 hold({100, 100}, 0.51);
             },
             true},
            {"too short",
             [] {
                 hold({100, 100}, 0.49);
             },
             false},
            {"a tremble",
             [] {
                 down({100, 100}), move({106, 108}), waitFor(0.6), up();
             },
             true},
            {"a move",
             [] {
                 down({100, 100}), move({107, 108}), waitFor(0.6), up();
             },
             false},
            {"a second finger",
             [] {
                 down({100, 100}, 1), down({150, 100}, 2), waitFor(0.6), up(1), up(2);
             },
             false}},
           "press Began");
    [press setMinimumPressDuration:0.1];
    [press setAllowableMovement:50];
    tryAll({{"sooner",
             [] {
                 hold({100, 100}, 0.15);
             },
             true},
            {"farther",
             [] {
                 down({100, 100}), move({140, 100}), waitFor(0.2), up();
             },
             true}},
           "press Began");
}

TEST(LongPress, FollowsTheFingerAfterItsBegin) {
    Witness *target = witness("press");
    UIView *view = canvas();
    std::vector<double> places;
    target->also = [&](UIGestureRecognizer *press) { places.push_back([press locationInView:view].x); };
    addRecognizer<UILongPressGestureRecognizer>(view, [UILongPressGestureRecognizer class], target);
    down({100, 100});
    waitFor(0.6);
    move({130, 100});
    move({190, 100});
    up();
    EXPECT_THAT(takeNotes(), ElementsAre("press Began", "press Changed", "press Changed", "press Ended"));
    EXPECT_THAT(places, ElementsAre(100, 130, 190, 190));
}

TEST(Pan, BeginsAfterMoreThanTenPoints) {
    addRecognizer(canvas(), [UIPanGestureRecognizer class], "pan");
    tryAll({{"along", [] { nudge(11, 0); }, true},
            {"ten", [] { nudge(10, 0); }, false},
            {"aslant", [] { nudge(8, -8); }, true},
            {"there and back",
             [] {
                 down({100, 100}), move({109, 100}), move({92, 100}), up();
             },
             false}},
           "pan Began");
}

TEST(Pan, TellsHowFarItCameBeyondItsThreshold) {
    UIView *view = canvas();
    Witness *target = witness("pan");
    std::vector<double> translations;
    target->also = [&](UIGestureRecognizer *recognizer) {
        auto *pan = static_cast<UIPanGestureRecognizer *>(recognizer);
        translations.push_back([pan translationInView:view].x);
        if ([pan state] == UIGestureRecognizerStateChanged)
            [pan setTranslation:CGPointMake(1, 0) inView:view];
    };
    addRecognizer<UIPanGestureRecognizer>(view, [UIPanGestureRecognizer class], target);
    down({100, 100});
    for (CGFloat x : {112.0, 130.0, 150.0}) move({x, 100});
    up();
    EXPECT_THAT(translations, ElementsAre(2, 20, 21, 1));
}

TEST(Pan, MeasuresInTheViewItIsAskedAbout) {
    UIView *view = canvas();
    UIView *turned = addView(view, CGRectMake(100, 100, 200, 200));
    [turned setTransform:CGAffineTransformConcat(CGAffineTransformMakeRotation(M_PI / 2),
                                                 CGAffineTransformMakeScale(2, 2))];
    Witness *target = witness("pan");
    CGPoint translation = CGPointZero, velocity = CGPointZero;
    target->also = [&](UIGestureRecognizer *recognizer) {
        auto *pan = static_cast<UIPanGestureRecognizer *>(recognizer);
        translation = [pan translationInView:turned];
        velocity = [pan velocityInView:turned];
    };
    addRecognizer<UIPanGestureRecognizer>(view, [UIPanGestureRecognizer class], target);
    flingFromTo({50, 300}, {50, 410}, 0.5); // 220 points a second downwards
    EXPECT_NEAR(translation.x, 50, 0.01);
    EXPECT_NEAR(translation.y, 0, 0.01);
    EXPECT_NEAR(velocity.x, 110, 0.5);
    EXPECT_NEAR(velocity.y, 0, 0.01);
}

TEST(Pan, HasNoSpeedLeftAfterARest) {
    UIView *view = canvas();
    Witness *target = witness("pan");
    double last = -1;
    target->also = [&](UIGestureRecognizer *pan) {
        last = [static_cast<UIPanGestureRecognizer *>(pan) velocityInView:view].x;
    };
    addRecognizer<UIPanGestureRecognizer>(view, [UIPanGestureRecognizer class], target);
    flingFromTo({50, 300}, {150, 300}, 0.2);
    EXPECT_NEAR(last, 500, 1);
    dragFromTo({50, 300}, {150, 300}, 0.2);
    EXPECT_EQ(last, 0);
}

TEST(Pan, SecondFingersNeitherEndItNorMakeItJump) {
    UIView *view = canvas();
    Witness *target = witness("pan");
    double last = 0;
    target->also = [&](UIGestureRecognizer *pan) {
        last = [static_cast<UIPanGestureRecognizer *>(pan) translationInView:view].x;
    };
    auto *pan = addRecognizer<UIPanGestureRecognizer>(view, [UIPanGestureRecognizer class], target);
    down({100, 100}, 1);
    move({130, 100}, 1);
    down({300, 100}, 2);
    move({310, 100}, 2); // the middle moves by half of it
    EXPECT_EQ(last, 25);
    up(1);
    move({320, 100}, 2);
    EXPECT_EQ(last, 35);
    up(2);
    EXPECT_EQ(takeNotes().back(), "pan Ended");
    [pan setMaximumNumberOfTouches:1];
    down({100, 100}, 1);
    down({300, 100}, 2);
    move({200, 100}, 1);
    EXPECT_THAT(takeNotes(), IsEmpty()) << "too many fingers";
    up(1);
    up(2);
    [pan setMaximumNumberOfTouches:2];
    [pan setMinimumNumberOfTouches:2];
    dragFromTo({100, 100}, {200, 100}, 0.2);
    EXPECT_THAT(takeNotes(), IsEmpty()) << "too few";
}

TEST(Swipe, TakesAQuickStraightMovement) {
    auto *swipe = static_cast<UISwipeGestureRecognizer *>(
        addRecognizer(canvas(), [UISwipeGestureRecognizer class], "swipe"));
    auto to = [](CGFloat dx, CGFloat dy, double seconds = 0.2) {
        return [=] { flingFromTo({180, 300}, {180 + dx, 300 + dy}, seconds); };
    };
    tryAll({{"right", to(80, 0), true},
            {"a little aslant", to(80, 30), true},
            {"left", to(-80, 0), false},
            {"down", to(0, 80), false},
            {"too short", to(40, 0), false},
            {"too slow", to(80, 0, 1), false},
            {"far aside", [] { nudge(60, 60); }, false},
            {"two fingers", twoFingers, false}},
           "swipe Ended");
    [swipe setDirection:UISwipeGestureRecognizerDirectionUp | UISwipeGestureRecognizerDirectionDown];
    tryAll({{"up", to(0, -80), true}, {"down", to(0, 80), true}, {"right", to(80, 0), false}}, "swipe Ended");
}

TEST(Swipe, RecognisesWhileTheFingerIsDown) {
    addRecognizer(canvas(), [UISwipeGestureRecognizer class], "swipe");
    down({100, 100});
    glide({100, 100}, {149, 100}, 0.1);
    EXPECT_THAT(takeNotes(), IsEmpty());
    glide({149, 100}, {150, 100}, 0.1);
    EXPECT_THAT(takeNotes(), ElementsAre("swipe Ended"));
    up();
}
