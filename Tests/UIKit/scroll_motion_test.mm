// Proves how the content of a scroll view moves with a finger and after it, and what its delegate hears.
#include "ScrollStage.h"

using namespace harness;

namespace {

const Lines kStopped = {"will drag", "end drag stops"};
const Lines kWentOn = {"will drag", "end drag goes on", "will decelerate", "did decelerate"};

} // namespace

TEST(Scrolling, FollowsTheFingerAlongAxesWithMoreContentThanRoom) {
    struct {
        const char *what;
        CGSize content;
        bool alwaysVertical;
        CGPoint way; // of the finger
        CGPoint offset;
        Lines heard;
    } const cases[] = {
        {"sideways", {900, 200}, false, {-110, 0}, {100, 0}, kStopped},
        {"up and down", {300, 800}, false, {0, -110}, {0, 100}, kStopped},
        {"the other way than it scrolls", {900, 200}, false, {0, -110}, {0, 0}, {}},
        {"mostly the other way", {900, 200}, false, {-40, -60}, {0, 0}, {}},
        {"mostly along", {900, 200}, false, {-110, -20}, {100, 0}, kStopped},
        {"both ways", {900, 800}, false, {-60, -80}, {54, 72}, kStopped}, // 10 of 100 points make it begin
        {"nothing to scroll", {300, 200}, false, {-110, -110}, {0, 0}, {}},
        {"less than a pan", {900, 200}, false, {-10, 0}, {0, 0}, {}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        ScrollStage stage(c.content);
        [stage.view setAlwaysBounceVertical:c.alwaysVertical];
        dragFromTo({200, 150}, {200 + c.way.x, 150 + c.way.y}, 0.5);
        EXPECT_NEAR(stage.x(), c.offset.x, 0.5);
        EXPECT_NEAR(stage.y(), c.offset.y, 0.5);
        EXPECT_EQ(takeNotes(), c.heard);
        EXPECT_EQ(stage.witness->scrolls > 0, !c.heard.empty());
        EXPECT_TRUE(stage.rests());
        EXPECT_THAT(sim::ongoingInteractions(), IsEmpty());
    }
}

TEST(Scrolling, GoesOnAfterAFlingAndSlowsDown) {
    ScrollStage stage({9000, 200});
    flingFromTo({250, 100}, {100, 100}, 0.15); // 1000 points a second
    EXPECT_TRUE([stage.view isDecelerating]);
    EXPECT_FALSE([stage.view isDragging]);
    EXPECT_NE(sim::ongoingInteractions().at(0).find("decelerates"), std::string::npos);
    double last = stage.x(), step = 1000;
    for (int frame = 0;[stage.view isDecelerating]; ++frame) {
        ASSERT_LT(frame, 300);
        waitFor(1.0 / 60);
        EXPECT_LE(stage.x() - last, step + 0.51) << "never faster than before, but for whole pixels";
        step = stage.x() - last, last = stage.x();
    }
    // All in all 1000 / 2.002 points, less what remains when it is too slow to see.
    EXPECT_NEAR(stage.x(), 140 + 499.5, 10);
    EXPECT_EQ(takeNotes(), kWentOn);
    EXPECT_TRUE(stage.rests());
}

TEST(Scrolling, ComesBackFromBeyondItsEdges) {
    struct {
        const char *what;
        bool bounces;
        CGFloat start;
        CGFloat to; // where the finger goes from 150
        bool flings;
        double rest;
        bool overshoots;
        Lines heard;
    } const cases[] = {
        {"pulled past the start", true, 0, 280, false, 0, true, kWentOn},
        {"pulled past the end", true, 600, 20, false, 600, true, kWentOn},
        {"flung past the end", true, 500, 20, true, 600, true, kWentOn},
        {"flung back from beyond", true, 0, 280, true, 0, true, kWentOn},
        {"pulled without bouncing", false, 0, 280, false, 0, false, kStopped},
        {"flung without bouncing", false, 550, 50, true, 600, false, kStopped},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        ScrollStage stage({900, 200});
        [stage.view setBounces:c.bounces];
        [stage.view setContentOffset:CGPointMake(c.start, 0)];
        stage.witness->least = {0, 0}, stage.witness->most = {600, 0};
        c.flings ? flingFromTo({150, 100}, {c.to, 100}, 0.2) : dragFromTo({150, 100}, {c.to, 100}, 0.2);
        waitFor(3);
        EXPECT_EQ(stage.x(), c.rest);
        bool beyond = stage.witness->least.x < 0 || stage.witness->most.x > 600;
        EXPECT_EQ(beyond, c.overshoots);
        EXPECT_GT(stage.witness->least.x, -150) << "the farther, the harder it pulls";
        EXPECT_LT(stage.witness->most.x, 750);
        EXPECT_EQ(takeNotes(), c.heard);
        EXPECT_TRUE(stage.rests());
    }
}

TEST(Scrolling, BouncesWithoutContentWhenItAlwaysDoes) {
    ScrollStage stage({300, 100});
    dragFromTo({150, 50}, {150, 150}, 0.2);
    EXPECT_THAT(takeNotes(), IsEmpty());
    [stage.view setAlwaysBounceVertical:YES];
    dragFromTo({150, 50}, {150, 150}, 0.2);
    EXPECT_LT(stage.witness->least.y, -20);
    waitFor(2);
    EXPECT_EQ(stage.y(), 0);
    EXPECT_EQ(takeNotes(), kWentOn);
}

TEST(Scrolling, SettlesOnPages) {
    struct {
        const char *what;
        CGFloat start, way;
        bool flings;
        CGFloat rest;
    } const cases[] = {
        {"less than half a page", 0, -120, false, 0},
        {"more than half", 0, -200, false, 300},
        {"a fling", 0, -100, true, 300},
        {"a fling back", 300, 100, true, 0},
        {"the hardest fling goes one page", 0, -280, true, 300},
        {"at the end", 600, -100, true, 600},
        {"at the start", 0, 100, true, 0},
        {"the last page, which is not a whole one", 300, -200, true, 600},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        ScrollStage stage({900, 200});
        [stage.view setPagingEnabled:YES];
        [stage.view setContentOffset:CGPointMake(c.start, 0)];
        stage.witness->least.x = stage.witness->most.x = c.start;
        CGPoint from = {c.way < 0 ? CGFloat(290) : CGFloat(10), 100}, to = {from.x + c.way, 100};
        c.flings ? flingFromTo(from, to, 0.1) : dragFromTo(from, to, 0.3);
        waitFor(2);
        EXPECT_EQ(stage.x(), c.rest);
        EXPECT_EQ(takeNotes(), kWentOn);
        if (c.rest > 0 && c.rest < 600)
            EXPECT_LE(stage.witness->most.x, std::max(c.start, c.rest)) << "no page is passed";
        EXPECT_TRUE(stage.rests());
    }
}

TEST(Scrolling, PagesThatAreNotWhole) {
    ScrollStage stage({301, 200}); // one page and a point: it bounces, and has nowhere else to go
    [stage.view setPagingEnabled:YES];
    dragFromTo({200, 100}, {100, 100}, 0.3);
    waitFor(2);
    EXPECT_GE(stage.x(), 0);
    EXPECT_LE(stage.x(), 1);
    dragFromTo({100, 100}, {200, 100}, 0.3);
    waitFor(2);
    EXPECT_EQ(stage.x(), 0);
    EXPECT_TRUE(stage.rests());
}

TEST(Scrolling, ATouchStopsContentThatMoves) {
    ScrollStage stage({9000, 200});
    UIView *item = addView(stage.view, CGRectMake(0, 0, 9000, 200));
    addRecognizer(item, [UITapGestureRecognizer class], "tap");
    flingFromTo({250, 100}, {100, 100}, 0.15);
    waitFor(0.2);
    takeNotes();
    double caught = stage.x();
    tapAt({150, 100});
    EXPECT_EQ(stage.x(), caught);
    EXPECT_THAT(takeNotes(), ElementsAre("did decelerate", "will drag", "end drag stops"))
        << "and is no tap on what it shows";
    waitFor(1);
    EXPECT_EQ(stage.x(), caught);
    EXPECT_THAT(takeNotes(), IsEmpty());
}

TEST(Scrolling, ATouchBetweenPagesLetsItSettle) {
    ScrollStage stage({900, 200});
    [stage.view setPagingEnabled:YES];
    flingFromTo({250, 100}, {150, 100}, 0.1);
    waitFor(0.05);
    tapAt({150, 100});
    waitFor(1);
    EXPECT_EQ(std::fmod(stage.x(), 300), 0);
    EXPECT_TRUE(stage.rests());
    Lines notes = takeNotes();
    EXPECT_EQ(std::count(notes.begin(), notes.end(), "did decelerate"), 2) << "once for each time";
}

TEST(Scrolling, SwitchedOffInTheMiddleOfADrag) {
    for (bool paging : {false, true}) {
        SCOPED_TRACE(paging);
        ScrollStage stage({900, 200});
        [stage.view setPagingEnabled:paging];
        down({250, 100});
        glide({250, 100}, {180, 100}, 0.1);
        [stage.view setScrollEnabled:NO];
        EXPECT_FALSE([stage.view isDragging]);
        EXPECT_FALSE([stage.view isTracking]);
        glide({180, 100}, {80, 100}, 0.1);
        [stage.view setScrollEnabled:YES];
        glide({80, 100}, {10, 100}, 0.1);
        up();
        waitFor(1);
        EXPECT_EQ(stage.x(), paging ? 0 : 60);
        EXPECT_EQ(takeNotes(), paging ? kWentOn : kStopped);
        dragFromTo({250, 100}, {40, 100}, 0.3);
        waitFor(1);
        EXPECT_EQ(stage.x(), paging ? 300 : 260) << "the next touch scrolls again";
        takeNotes();
    }
}

TEST(Scrolling, MovesToAnOffsetInThreeTenths) {
    ScrollStage stage({900, 200});
    [stage.view setContentOffset:CGPointMake(300, 0) animated:YES];
    EXPECT_EQ(stage.x(), 0);
    waitFor(0.15);
    EXPECT_NEAR(stage.x(), 150, 5);
    waitFor(0.13);
    EXPECT_THAT(takeNotes(), IsEmpty());
    waitFor(0.03);
    EXPECT_EQ(stage.x(), 300);
    EXPECT_THAT(takeNotes(), ElementsAre("did animate"));
    EXPECT_GT(stage.witness->scrolls, 10);
    flingFromTo({250, 100}, {150, 100}, 0.1);
    takeNotes();
    [stage.view setContentOffset:CGPointMake(20, 0) animated:NO];
    waitFor(1);
    EXPECT_EQ(stage.x(), 20) << "it also ends a deceleration";
    EXPECT_THAT(takeNotes(), ElementsAre("did decelerate"));
}

TEST(Scrolling, KeepsTheOffsetWithinContentThatChanges) {
    ScrollStage stage({900, 200});
    [stage.view setContentOffset:CGPointMake(600, 0)];
    [stage.view setContentSize:CGSizeMake(700, 200)];
    EXPECT_EQ(stage.x(), 400);
    [stage.view setFrame:CGRectMake(0, 0, 350, 200)];
    EXPECT_EQ(stage.x(), 350);
    [stage.view setContentInset:UIEdgeInsetsMake(0, 0, 0, 50)];
    [stage.view setContentOffset:CGPointMake(400, 0)];
    [stage.view setContentInset:UIEdgeInsetsMake(0, 0, 0, 0)];
    EXPECT_EQ(stage.x(), 350);
    [stage.view setContentInset:UIEdgeInsetsMake(20, 0, 0, 0)];
    EXPECT_EQ(stage.y(), 0) << "an inset alone moves nothing";
    [stage.view setContentSize:CGSizeMake(100, 100)];
    EXPECT_EQ(stage.x(), 0);
    // During a fling as well, at its end.
    [stage.view setContentInset:UIEdgeInsetsMake(0, 0, 0, 0)];
    [stage.view setContentSize:CGSizeMake(9000, 200)];
    flingFromTo({250, 100}, {150, 100}, 0.1);
    [stage.view setContentSize:CGSizeMake(400, 200)];
    waitFor(4);
    EXPECT_EQ(stage.x(), 50);
}

TEST(Scrolling, MovesItsContentByItsBounds) {
    ScrollStage stage({900, 200});
    UIView *item = addView(stage.view, CGRectMake(350, 50, 20, 20));
    EXPECT_EQ(sim::touchTarget({60, 60}), stage.view);
    [stage.view setContentOffset:CGPointMake(300, 0)];
    EXPECT_EQ(sim::touchTarget({60, 60}), item);
    EXPECT_EQ([stage.view bounds].origin.x, 300);
    [stage.view setBounds:CGRectMake(340, 0, 300, 200)];
    EXPECT_EQ(stage.x(), 340);
    EXPECT_EQ(stage.witness->scrolls, 2);
    EXPECT_TRUE([stage.view clipsToBounds]);
}

TEST(Scrolling, StopsWhenItsViewGoes) {
    ScrollStage stage({900, 200});
    flingFromTo({150, 100}, {290, 100}, 0.1); // beyond the start
    EXPECT_LT(stage.x(), 0);
    [stage.view removeFromSuperview];
    EXPECT_TRUE(stage.rests());
    EXPECT_EQ(stage.x(), 0);
    waitFor(1);
    EXPECT_EQ(takeNotes().back(), "will decelerate");
    EXPECT_THAT(sim::ongoingInteractions(), IsEmpty());
}
