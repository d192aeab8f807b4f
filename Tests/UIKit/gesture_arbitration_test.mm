// Proves which of several gesture recognisers on one touch wins: by place, by order, by what must fail first
// and by what the delegates say.
#include "Harness.h"

using namespace harness;

namespace {

enum class Gesture { tap, twoTaps, slowTaps, hold, longHold, drag };

void perform(Gesture gesture) {
    CGPoint place = {50, 50};
    switch (gesture) {
    case Gesture::tap:
        return tapAt(place);
    case Gesture::twoTaps:
        tapAt(place);
        waitFor(0.1);
        return tapAt(place);
    case Gesture::slowTaps:
        tapAt(place);
        waitFor(0.5);
        return tapAt(place);
    case Gesture::hold:
        return hold(place, 0.6);
    case Gesture::longHold:
        return hold(place, 2);
    case Gesture::drag:
        return dragFromTo(place, {50, 130}, 0.25);
    }
}

UIView *innerView() {
    UIView *outer = addView(makeWindow(), CGRectMake(0, 0, 300, 300));
    return addView(outer, CGRectMake(0, 0, 200, 200));
}

// The notes of a gesture, with every Changed dropped, and what comes until everything has been decided.
Lines outcome(Gesture gesture) {
    perform(gesture);
    waitFor(1);
    Lines notes = takeNotes();
    std::erase_if(notes, [](const std::string &line) { return line.ends_with("Changed"); });
    return notes;
}

Class tapClass() { return [UITapGestureRecognizer class]; }
Class panClass() { return [UIPanGestureRecognizer class]; }
Class pressClass() { return [UILongPressGestureRecognizer class]; }
Class swipeClass() { return [UISwipeGestureRecognizer class]; }

struct Pair {
    const char *what;
    Class (*inner)();
    Class (*outer)();
    Gesture gesture;
    Lines apart;    // with delegates that say nothing of running together
    Lines together; // with one that allows it
};

const Pair kPairs[] = {
    {"the inner of two taps",
     tapClass,
     tapClass,
     Gesture::tap,
     {"inner Ended"},
     {"inner Ended", "outer Ended"}},
    {"the inner of two pans",
     panClass,
     panClass,
     Gesture::drag,
     {"inner Began", "inner Ended"},
     {"inner Began", "outer Began", "inner Ended", "outer Ended"}},
    {"the inner of two long presses",
     pressClass,
     pressClass,
     Gesture::hold,
     {"inner Began", "inner Ended"},
     {"inner Began", "outer Began", "inner Ended", "outer Ended"}},
    {"a pan that begins before the swipe has gone far enough",
     swipeClass,
     panClass,
     Gesture::drag,
     {"outer Began", "outer Ended"},
     {"outer Began", "inner Ended", "outer Ended"}},
    {"a press that begins before the finger lifts",
     tapClass,
     pressClass,
     Gesture::hold,
     {"outer Began", "outer Ended"},
     {"outer Began", "outer Ended", "inner Ended"}},
    {"a tap when the press was too short",
     pressClass,
     tapClass,
     Gesture::tap,
     {"outer Ended"},
     {"outer Ended"}},
};

} // namespace

TEST(Arbitration, TheFirstToBeginWinsUnlessTheyMayRunTogether) {
    for (const auto &c : kPairs) {
        SCOPED_TRACE(c.what);
        UIView *inner = innerView();
        Witness *in = witness("inner"), *out = witness("outer");
        auto *first = addRecognizer<UIGestureRecognizer>(inner, c.inner(), in);
        auto *second = addRecognizer<UIGestureRecognizer>([inner superview], c.outer(), out);
        for (UIGestureRecognizer *recognizer : {first, second})
            if ([recognizer isKindOfClass:[UISwipeGestureRecognizer class]])
                [static_cast<UISwipeGestureRecognizer *>(recognizer)
                    setDirection:UISwipeGestureRecognizerDirectionDown];
        EXPECT_EQ(outcome(c.gesture), c.apart);
        in->runsTogether = true;
        EXPECT_EQ(outcome(c.gesture), c.together) << "the inner one's delegate allows it";
        in->runsTogether = false, out->runsTogether = true;
        EXPECT_EQ(outcome(c.gesture), c.together) << "the outer one's delegate allows it";
    }
}

TEST(Arbitration, OneTapAndTwoTapsOnOneView) {
    struct {
        Gesture gesture;
        Lines free, waiting; // without and with "one tap requires two to fail"
    } const cases[] = {
        {Gesture::tap, {"one Ended"}, {"one Ended"}},
        {Gesture::twoTaps, {"one Ended", "two Ended"}, {"two Ended"}},
        {Gesture::slowTaps, {"one Ended", "one Ended"}, {"one Ended", "one Ended"}},
    };
    for (bool oneFirst : {true, false}) {
        SCOPED_TRACE(oneFirst ? "one added first" : "two added first");
        UIView *view = innerView();
        auto add = [=](const char *name) { return addRecognizer(view, tapClass(), name); };
        UIGestureRecognizer *one = oneFirst ? add("one") : nil;
        auto *two = static_cast<UITapGestureRecognizer *>(add("two"));
        if (!one) one = add("one");
        [two setNumberOfTapsRequired:2];
        for (const auto &c : cases) EXPECT_EQ(outcome(c.gesture), c.free);
        [one requireGestureRecognizerToFail:two];
        for (const auto &c : cases) EXPECT_EQ(outcome(c.gesture), c.waiting);
    }
}

TEST(Arbitration, AHeldBackTapIsSentWhenTheOtherFails) {
    UIView *view = innerView();
    auto *one = addRecognizer(view, tapClass(), "one");
    auto *two = static_cast<UITapGestureRecognizer *>(addRecognizer(view, tapClass(), "two"));
    [two setNumberOfTapsRequired:2];
    [one requireGestureRecognizerToFail:two];
    tapAt({50, 50});
    waitFor(0.34);
    EXPECT_THAT(takeNotes(), IsEmpty());
    EXPECT_FALSE(sim::ongoingInteractions().empty()) << "the wait shows";
    waitFor(0.02);
    EXPECT_THAT(takeNotes(), ElementsAre("one Ended"));
    EXPECT_THAT(sim::ongoingInteractions(), IsEmpty());
    EXPECT_NEAR([one locationInView:view].x, 50, 0.01) << "the place of the tap is still known";
}

TEST(Arbitration, AShortPressThatWaitsForATap) {
    UIView *view = innerView();
    auto *tap = addRecognizer(view, tapClass(), "tap");
    Witness *target = witness("press");
    double began = 0;
    target->also = [&](UIGestureRecognizer *) { began = began ? began : now(); };
    auto *press = addRecognizer<UILongPressGestureRecognizer>(view, pressClass(), target);
    [press setMinimumPressDuration:0.1];
    [press requireGestureRecognizerToFail:tap];
    EXPECT_EQ(outcome(Gesture::tap), Lines{"tap Ended"});
    EXPECT_EQ(outcome(Gesture::hold), Lines{"tap Ended"}) << "the tap is not too long yet";
    double start = now();
    EXPECT_EQ(outcome(Gesture::longHold), (Lines{"press Began", "press Ended"}));
    EXPECT_NEAR(began - start, 0.75, 0.001) << "at the moment in which the tap fails";
    EXPECT_EQ(outcome(Gesture::drag), Lines{}) << "a moving finger does neither";
}

TEST(Arbitration, WhatRequiresARecognisedGestureToFailFailsItself) {
    UIView *view = innerView();
    Witness *swipeTarget = witness("swipe"), *panTarget = witness("pan");
    swipeTarget->runsTogether = panTarget->runsTogether = true;
    auto *swipe = addRecognizer<UISwipeGestureRecognizer>(view, swipeClass(), swipeTarget);
    auto *pan = addRecognizer<UIPanGestureRecognizer>(view, panClass(), panTarget);
    [swipe setDirection:UISwipeGestureRecognizerDirectionDown];
    [pan requireGestureRecognizerToFail:swipe];
    EXPECT_EQ(outcome(Gesture::drag), Lines{"swipe Ended"});
    [swipe setDirection:UISwipeGestureRecognizerDirectionLeft];
    EXPECT_EQ(outcome(Gesture::drag), (Lines{"pan Began", "pan Ended"}))
        << "a swipe the other way has failed";
    [swipe setEnabled:NO];
    EXPECT_EQ(outcome(Gesture::drag), (Lines{"pan Began", "pan Ended"}))
        << "one that is off is not waited for";
}

TEST(Arbitration, DelegatesHaveTheirSay) {
    UIView *inner = innerView();
    Witness *in = witness("inner"), *out = witness("outer");
    addRecognizer<UITapGestureRecognizer>(inner, tapClass(), in);
    addRecognizer<UITapGestureRecognizer>([inner superview], tapClass(), out);
    EXPECT_EQ(outcome(Gesture::tap), Lines{"inner Ended"});
    in->refusesToBegin = true;
    EXPECT_EQ(outcome(Gesture::tap), Lines{"outer Ended"}) << "one that may not begin prevents nobody";
    in->refusesToBegin = false, in->refusesTouches = true;
    EXPECT_EQ(outcome(Gesture::tap), Lines{"outer Ended"});
    out->refusesToBegin = true;
    EXPECT_EQ(outcome(Gesture::tap), Lines{});
}

// Used for nothing but its answers.
@interface DelegateRecognizer : UISwipeGestureRecognizer <UIGestureRecognizerDelegate>
@end
@implementation DelegateRecognizer
- (BOOL)gestureRecognizer:(UIGestureRecognizer *)recognizer
    shouldRecognizeSimultaneouslyWithGestureRecognizer:(UIGestureRecognizer *)other {
    return YES;
}
@end

TEST(Arbitration, ARecogniserWithoutAViewServesAsDelegate) {
    UIView *inner = innerView();
    auto *pan = addRecognizer(inner, panClass(), "inner");
    addRecognizer([inner superview], panClass(), "outer");
    DelegateRecognizer *delegate = [[DelegateRecognizer new] autorelease];
    [pan setDelegate:delegate];
    EXPECT_EQ(outcome(Gesture::drag), (Lines{"inner Began", "outer Began", "inner Ended", "outer Ended"}));
    EXPECT_EQ(stateOf(delegate), "Possible");
}

TEST(Arbitration, SeparateFingersOnSeparateViewsDoNotMeet) {
    UIWindow *window = makeWindow();
    UIView *left = addView(window, CGRectMake(0, 0, 100, 200)),
           *right = addView(window, CGRectMake(200, 0, 100, 200));
    addRecognizer(left, panClass(), "left");
    addRecognizer(right, panClass(), "right");
    down({50, 50}, 1);
    down({250, 50}, 2);
    glide({50, 50}, {50, 80}, 0.1, 1);
    glide({250, 50}, {250, 80}, 0.1, 2);
    up(1);
    up(2);
    Lines notes = takeNotes();
    std::erase_if(notes, [](const std::string &line) { return line.ends_with("Changed"); });
    EXPECT_EQ(notes, (Lines{"left Began", "right Began", "left Ended", "right Ended"}));
}
