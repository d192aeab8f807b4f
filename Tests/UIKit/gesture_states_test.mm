// Proves that a gesture recogniser goes from state to state by the platform's rules, whatever its class asks
// for, and that its actions see each state once.
#include "Harness.h"

#include "Runtime/Process/Events.hpp"
#include "UIKit/UIKit+Further.h"

#include <UIKit/UIGestureRecognizerSubclass.h>

using namespace harness;

// Asks for the given states, one with each movement of its finger.
@interface ScriptedRecognizer : UIGestureRecognizer {
@public
    std::vector<UIGestureRecognizerState> script;
    size_t step;
}
@end

@implementation ScriptedRecognizer
- (void)touchesMoved:(NSSet *)touches withEvent:(UIEvent *)event {
    if (step < script.size()) [self setState:script[step++]];
}
@end

namespace {

constexpr auto kPossible = UIGestureRecognizerStatePossible, kBegan = UIGestureRecognizerStateBegan,
               kChanged = UIGestureRecognizerStateChanged, kEnded = UIGestureRecognizerStateEnded,
               kCancelled = UIGestureRecognizerStateCancelled, kFailed = UIGestureRecognizerStateFailed;

struct Case {
    const char *what;
    std::vector<UIGestureRecognizerState> asked;
    Lines actions;
    Lines warnings; // "from X to Y"
};

const Case kCases[] = {
    {"a discrete gesture", {kEnded}, {"it Ended"}, {}},
    {"a continuous one",
     {kBegan, kChanged, kChanged, kEnded},
     {"it Began", "it Changed", "it Changed", "it Ended"},
     {}},
    {"one that the system takes away", {kBegan, kCancelled}, {"it Began", "it Cancelled"}, {}},
    {"a failure is silent", {kFailed}, {}, {}},
    {"after a failure touches that are still down do not count", {kFailed, kBegan}, {}, {}},
    {"after a tap as well", {kEnded, kEnded}, {"it Ended"}, {}},
    {"changing before beginning", {kChanged, kBegan}, {"it Began"}, {"from Possible to Changed"}},
    {"cancelling before beginning", {kCancelled}, {}, {"from Possible to Cancelled"}},
    {"failing after beginning",
     {kBegan, kFailed, kEnded},
     {"it Began", "it Ended"},
     {"from Began to Failed"}},
    {"beginning twice", {kBegan, kBegan}, {"it Began"}, {"from Began to Began"}},
    {"beginning anew while it changes",
     {kBegan, kChanged, kBegan},
     {"it Began", "it Changed"},
     {"from Changed to Began"}},
    {"going back by itself", {kBegan, kPossible}, {"it Began"}, {"from Began to Possible"}},
    {"a state that does not exist", {9}, {}, {"from Possible to no state"}},
};

Lines takeWarnings() {
    Lines result;
    for (const auto &event : sim::takeEvents())
        if (event["kind"].string() == "warning") result.push_back(event["text"].string());
    return result;
}

} // namespace

TEST(GestureStates, FollowTheTableOfLegalSteps) {
    UIWindow *window = makeWindow();
    for (const auto &c : kCases) {
        SCOPED_TRACE(c.what);
        UIView *view = addView(window, CGRectMake(0, 0, 100, 100));
        auto *recognizer =
            static_cast<ScriptedRecognizer *>(addRecognizer(view, [ScriptedRecognizer class], "it"));
        recognizer->script = c.asked;
        sim::takeEvents();
        down({10, 10});
        for (size_t i = 1; i <= c.asked.size(); ++i) move({10 + CGFloat(i), 10});
        EXPECT_EQ(takeNotes(), c.actions);
        Lines wanted;
        for (const auto &warning : c.warnings) wanted.push_back("ScriptedRecognizer cannot go " + warning);
        EXPECT_EQ(takeWarnings(), wanted);
        [view removeFromSuperview];
        up();
        takeNotes();
    }
}

TEST(GestureStates, GoBackToPossibleOnceTheActionHasSeenThem) {
    UIView *view = addView(makeWindow(), CGRectMake(0, 0, 100, 100));
    auto *tap = addRecognizer(view, [UITapGestureRecognizer class], "tap");
    tapAt({10, 10});
    EXPECT_THAT(takeNotes(), ElementsAre("tap Ended"));
    EXPECT_EQ(stateOf(tap), "Possible");
    tapAt({10, 10});
    EXPECT_THAT(takeNotes(), ElementsAre("tap Ended")) << "and the next gesture is a new one";
}

TEST(GestureStates, ReachEveryTargetWithOrWithoutArgument) {
    UIView *view = addView(makeWindow(), CGRectMake(0, 0, 100, 100));
    Witness *first = witness("first"), *second = witness("second"), *removed = witness("removed");
    auto *tap = addRecognizer<UITapGestureRecognizer>(view, [UITapGestureRecognizer class], first);
    [tap addTarget:first action:@selector(act:)]; // the same pair counts once
    [tap addTarget:second action:@selector(actWithoutArgument)];
    [tap addTarget:removed action:@selector(act:)];
    [tap removeTarget:removed action:nullptr];
    tapAt({10, 10});
    EXPECT_THAT(takeNotes(), ElementsAre("first Ended", "second"));
}

namespace {

struct Interruption {
    const char *what;
    std::function<void(UIGestureRecognizer *)> happen;
    Lines actions; // after Began
};

const Interruption kInterruptions[] = {
    {"switching it off cancels it", [](UIGestureRecognizer *r) { [r setEnabled:NO]; }, {"pan Cancelled"}},
    {"taking it off its view drops it without a word",
     [](UIGestureRecognizer *r) { [[r view] removeGestureRecognizer:r]; },
     {}},
    {"a view that leaves its window cancels it",
     [](UIGestureRecognizer *r) { [[r view] removeFromSuperview]; },
     {"pan Cancelled"}},
    {"so does one further out",
     [](UIGestureRecognizer *r) { [[[r view] superview] removeFromSuperview]; },
     {"pan Cancelled"}},
    {"and a touch that the system takes away", [](UIGestureRecognizer *) { cancel(); }, {"pan Cancelled"}},
};

} // namespace

TEST(GestureStates, EndWhenTheGestureIsInterrupted) {
    UIWindow *window = makeWindow();
    for (const auto &c : kInterruptions) {
        SCOPED_TRACE(c.what);
        UIView *view = addView(addView(window, CGRectMake(0, 0, 300, 300)), CGRectMake(0, 0, 300, 300));
        auto *pan = [addRecognizer(view, [UIPanGestureRecognizer class], "pan") retain];
        down({10, 10});
        glide({10, 10}, {40, 10}, 0.1);
        takeNotes();
        c.happen(pan);
        waitFor(0);
        EXPECT_EQ(takeNotes(), c.actions);
        EXPECT_EQ(stateOf(pan), "Possible");
        glide({40, 10}, {90, 10}, 0.1);
        up();
        EXPECT_THAT(takeNotes(), IsEmpty()) << "the rest of the touch is not for it";
        [[view superview] removeFromSuperview];
        [pan release];
    }
}

TEST(GestureStates, EndInTheMiddleOfItsOwnAction) {
    UIView *view = addView(makeWindow(), CGRectMake(0, 0, 300, 300));
    Witness *target = witness("pan");
    addRecognizer<UIPanGestureRecognizer>(view, [UIPanGestureRecognizer class], target);
    target->also = [](UIGestureRecognizer *recognizer) {
        if ([recognizer state] == UIGestureRecognizerStateChanged) [recognizer setEnabled:NO];
    };
    dragFromTo({10, 10}, {90, 10}, 0.1);
    EXPECT_THAT(takeNotes(), ElementsAre("pan Began", "pan Changed", "pan Cancelled"));
}
