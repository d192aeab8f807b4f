// Proves how a scroll view shares a finger with what it holds and what holds it, and when its indicators
// show.
#include "ScrollStage.h"

using namespace harness;

namespace {

// Whether scroll notes came; and the others.
struct Outcome {
    bool scrolled;
    Lines others;
};

Outcome outcome() {
    Outcome result{false, {}};
    for (const auto &line : takeNotes()) {
        if (line == "will drag") result.scrolled = true;
        if (line.find("drag") == std::string::npos && line.find("decelerate") == std::string::npos)
            result.others.push_back(line);
    }
    return result;
}

size_t countOf(UIView *view, Class kind) {
    size_t count = 0;
    for (UIView *subview in [view subviews]) count += [subview isKindOfClass:kind];
    return count;
}

} // namespace

TEST(ScrollContent, GetsItsTouchesAfterAMoment) {
    ScrollStage stage({900, 200});
    addTouchedView(stage.view, CGRectMake(0, 0, 900, 200), "content");
    down({100, 100});
    waitFor(0.14);
    EXPECT_THAT(takeNotes(), IsEmpty());
    waitFor(0.02);
    EXPECT_THAT(takeNotes(), ElementsAre("content began"));
    up();
    EXPECT_THAT(takeNotes(), ElementsAre("content ended"));
    tapAt({100, 100});
    EXPECT_THAT(takeNotes(), ElementsAre("content began", "content ended")) << "a short tap comes at its end";
    [stage.view setDelaysContentTouches:NO];
    down({100, 100});
    EXPECT_THAT(takeNotes(), ElementsAre("content began"));
    up();
    takeNotes();
    [stage.view setDelaysContentTouches:YES];
    [stage.view setContentSize:CGSizeMake(300, 200)];
    down({100, 100});
    EXPECT_THAT(takeNotes(), ElementsAre("content began")) << "what cannot scroll delays nothing";
    up();
}

TEST(ScrollContent, LosesItsTouchToADrag) {
    struct {
        const char *what;
        bool control;   // else a plain view
        double holds;   // before the drag
        bool mayCancel; // as the scroll view is told
        bool scrolls;
        Lines others;
    } const cases[] = {
        {"a view, at once", false, 0, true, true, {}},
        {"a view, after a moment", false, 0.3, true, true, {"began", "cancelled"}},
        {"one that keeps its touches", false, 0.3, false, false, {"began", "moved", "ended"}},
        {"but only those that it has", false, 0, false, true, {}},
        {"a control, at once", true, 0, true, true, {}},
        {"a control, after a moment", true, 0.3, true, false, {"began", "moved", "ended"}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        ScrollStage stage({900, 200});
        [stage.view setCanCancelContentTouches:c.mayCancel];
        UIView *content = c.control ? [[UIControl alloc] initWithFrame:CGRectMake(0, 0, 300, 200)]
                                    : [[TouchedView alloc] initWithFrame:CGRectMake(0, 0, 300, 200)];
        [stage.view addSubview:content];
        down({200, 100});
        waitFor(c.holds);
        move({150, 100});
        EXPECT_EQ([content isKindOfClass:[UIControl class]] && [(UIControl *)content isTracking],
                  c.control && !c.scrolls);
        up();
        auto [scrolled, others] = outcome();
        EXPECT_EQ(scrolled, c.scrolls);
        Lines wanted;
        for (const auto &line : c.others) wanted.push_back(" " + line);
        if (!c.control) EXPECT_EQ(others, wanted);
        [content release];
    }
}

TEST(ScrollContent, RecognisersOfItems) {
    struct {
        const char *what;
        Class kind;
        bool together;
        std::function<void()> gesture;
        bool scrolls;
        Lines others; // without Changed
    } const cases[] = {
        {"a tap on an item",
         [UITapGestureRecognizer class],
         false,
         [] {
             tapAt({150, 100});
         },
         false,
         {"item Ended"}},
        {"a drag is none",
         [UITapGestureRecognizer class],
         false,
         [] {
             dragFromTo({150, 100}, {120, 100}, 0.2);
         },
         true,
         {}},
        {"a pan of the item comes first",
         [UIPanGestureRecognizer class],
         false,
         [] {
             dragFromTo({150, 100}, {50, 100}, 0.2);
         },
         false,
         {"item Began", "item Ended"}},
        {"unless its delegate lets both",
         [UIPanGestureRecognizer class],
         true,
         [] {
             dragFromTo({150, 100}, {50, 100}, 0.2);
         },
         true,
         {"item Began", "item Ended"}},
        {"across, the item's alone",
         [UIPanGestureRecognizer class],
         true,
         [] {
             dragFromTo({150, 100}, {150, 180}, 0.2);
         },
         false,
         {"item Began", "item Ended"}},
        {"a press keeps it from scrolling",
         [UILongPressGestureRecognizer class],
         false,
         [] {
             down({150, 100});
             waitFor(0.6);
             glide({150, 100}, {50, 100}, 0.2);
             up();
         },
         false,
         {"item Began", "item Ended"}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        ScrollStage stage({900, 200});
        UIView *item = addView(stage.view, CGRectMake(0, 0, 300, 200));
        Witness *target = witness("item");
        target->runsTogether = c.together;
        addRecognizer<UIGestureRecognizer>(item, c.kind, target);
        c.gesture();
        auto [scrolled, others] = outcome();
        std::erase(others, "item Changed");
        EXPECT_EQ(scrolled, c.scrolls);
        EXPECT_EQ(others, c.others);
        waitFor(2);
        takeNotes();
    }
}

TEST(ScrollContent, AnItemMayStopTheScrollingFromItsOwnPan) {
    ScrollStage stage({900, 200});
    UIView *item = addView(stage.view, CGRectMake(0, 0, 300, 200));
    Witness *target = witness("item");
    target->runsTogether = true;
    UIScrollView *view = stage.view;
    target->also = [=](UIGestureRecognizer *pan) {
        if ([pan state] == UIGestureRecognizerStateChanged) [view setScrollEnabled:NO];
        if ([pan state] == UIGestureRecognizerStateEnded) [view setScrollEnabled:YES];
    };
    addRecognizer<UIPanGestureRecognizer>(item, [UIPanGestureRecognizer class], target);
    dragFromTo({150, 100}, {50, 190}, 0.3);
    waitFor(1);
    EXPECT_LT(stage.x(), 40) << "it stood still from the item's first change on";
    EXPECT_TRUE(stage.rests());
    EXPECT_TRUE([view isScrollEnabled]);
    Lines notes = takeNotes();
    EXPECT_EQ(notes.front(), "item Began");
    EXPECT_EQ(notes.back(), "item Ended");
}

TEST(ScrollContent, OneScrollViewInAnother) {
    ScrollStage outer({300, 900});
    auto *inner = [[UIScrollView alloc] initWithFrame:CGRectMake(0, 0, 300, 200)];
    [inner setContentSize:CGSizeMake(900, 200)];
    [outer.view addSubview:inner];
    dragFromTo({200, 100}, {90, 100}, 0.3);
    EXPECT_NEAR([inner contentOffset].x, 100, 1);
    EXPECT_EQ(outer.y(), 0);
    dragFromTo({200, 150}, {200, 40}, 0.3);
    EXPECT_NEAR(outer.y(), 100, 1) << "each has its own direction";
    [outer.view setContentOffset:CGPointZero];
    [inner setContentSize:CGSizeMake(300, 900)];
    dragFromTo({200, 150}, {200, 40}, 0.3);
    EXPECT_NEAR([inner contentOffset].y, 100, 1);
    EXPECT_EQ(outer.y(), 0) << "in the same direction the inner one goes first";
    [inner release];
}

TEST(ScrollIndicators, ShowWhileContentMovesAndStayAboveIt) {
    ScrollStage stage({300, 800});
    UIView *first = addView(stage.view, CGRectMake(0, 0, 300, 400));
    EXPECT_EQ([[stage.view subviews] count], 1u);
    down({200, 150});
    glide({200, 150}, {200, 40}, 0.2);
    ASSERT_EQ(countOf(stage.view, [UIImageView class]), 1u) << "for the axis that scrolls";
    UIView *bar = [[stage.view subviews] lastObject];
    EXPECT_EQ([bar alpha], 1);
    CGRect frame = [bar frame];
    EXPECT_GT(frame.origin.x, 290) << "at the right edge";
    EXPECT_GT(frame.origin.y, [stage.view contentOffset].y + 20) << "as far down as the content has come";
    EXPECT_NEAR(frame.size.height, 194.0 * 200 / 800, 1);
    up();
    waitFor(5);
    EXPECT_EQ([bar alpha], 0);
    EXPECT_EQ([[stage.view subviews] objectAtIndex:0], first);
    addView(stage.view, CGRectMake(0, 400, 300, 400));
    dragFromTo({200, 150}, {200, 100}, 0.2);
    EXPECT_EQ([[stage.view subviews] lastObject], bar);
}

TEST(ScrollIndicators, AreAbsentWhereTheyAreNotWanted) {
    ScrollStage stage({900, 800});
    [stage.view setShowsHorizontalScrollIndicator:NO];
    [stage.view setShowsVerticalScrollIndicator:NO];
    dragFromTo({200, 150}, {100, 50}, 0.2);
    EXPECT_EQ([[stage.view subviews] count], 0u);
    [stage.view setShowsHorizontalScrollIndicator:YES];
    dragFromTo({200, 150}, {100, 50}, 0.2);
    EXPECT_EQ([[stage.view subviews] count], 1u);
    [stage.view setShowsHorizontalScrollIndicator:NO];
    EXPECT_EQ([[stage.view subviews] count], 0u);
}
