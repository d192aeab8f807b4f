// Proves in which order views lie in one another, what they hear of it, and how they are found again.
#include "Looks.h"

#include "UIKit/Views/UIView+Further.h"

#include <algorithm>

using namespace harness;

// Notes where it goes, and that it is gone.
@interface Traveller : UIView
@end
@implementation Traveller
- (void)willMoveToSuperview:(UIView *)superview {
    note("will go to view " + tagOf(superview));
}
- (void)didMoveToSuperview {
    note("is in view " + tagOf([self superview]));
}
- (void)willMoveToWindow:(UIWindow *)window {
    note("will go to window " + tagOf(window));
}
- (void)didMoveToWindow {
    note("is in window " + tagOf([self window]));
}
- (void)dealloc {
    note("gone");
    [super dealloc];
}
@end

namespace {

UIView *tagged(NSInteger tag) {
    UIView *view = [[UIView new] autorelease];
    [view setTag:tag];
    return view;
}

std::string order(UIView *view) {
    std::string result;
    for (UIView *each in [view subviews]) result += (result.empty() ? "" : " ") + tagOf(each);
    return result;
}

Lines sortedNotes() {
    Lines lines = takeNotes();
    std::sort(lines.begin(), lines.end());
    return lines;
}

UIWindow *taggedWindow(NSInteger tag) {
    UIWindow *window = makeWindow();
    [window setTag:tag];
    return window;
}

} // namespace

TEST(Hierarchy, ViewsLieInTheOrderInWhichTheyAreToldTo) {
    // In a view with the subviews 1, 2 and 3; `get` finds one of them, 9 is new.
    struct {
        const char *what;
        void (*change)(UIView *, UIView * (^get)(NSInteger));
        const char *order;
    } const cases[] = {
        {"a new one", [](UIView *v, auto get) { [v addSubview:get(9)]; }, "1 2 3 9"},
        {"one that is there", [](UIView *v, auto get) { [v addSubview:get(1)]; }, "2 3 1"},
        {"at the back", [](UIView *v, auto get) { [v insertSubview:get(9) atIndex:0]; }, "9 1 2 3"},
        {"at an index", [](UIView *v, auto get) { [v insertSubview:get(9) atIndex:2]; }, "1 2 9 3"},
        {"past the end", [](UIView *v, auto get) { [v insertSubview:get(9) atIndex:7]; }, "1 2 3 9"},
        {"its own index", [](UIView *v, auto get) { [v insertSubview:get(2) atIndex:1]; }, "1 2 3"},
        {"backwards", [](UIView *v, auto get) { [v insertSubview:get(3) atIndex:0]; }, "3 1 2"},
        {"below", [](UIView *v, auto get) { [v insertSubview:get(9) belowSubview:get(2)]; }, "1 9 2 3"},
        {"above", [](UIView *v, auto get) { [v insertSubview:get(9) aboveSubview:get(2)]; }, "1 2 9 3"},
        {"above the last", [](UIView *v, auto get) { [v insertSubview:get(9) aboveSubview:get(3)]; },
         "1 2 3 9"},
        {"below a later one", [](UIView *v, auto get) { [v insertSubview:get(1) belowSubview:get(3)]; },
         "2 1 3"},
        {"above an earlier one", [](UIView *v, auto get) { [v insertSubview:get(3) aboveSubview:get(1)]; },
         "1 3 2"},
        {"to the front", [](UIView *v, auto get) { [v bringSubviewToFront:get(1)]; }, "2 3 1"},
        {"to the back", [](UIView *v, auto get) { [v sendSubviewToBack:get(3)]; }, "3 1 2"},
        {"a stranger to the front", [](UIView *v, auto get) { [v bringSubviewToFront:get(9)]; }, "1 2 3"},
        {"away", [](UIView *, auto get) { [get(2) removeFromSuperview]; }, "1 3"},
        {"to another view", [](UIView *v, auto get) { [get(1) addSubview:get(2)], (void)v; }, "1 3"},
        {"nil", [](UIView *v, auto) { [v addSubview:nil]; }, "1 2 3"},
        {"beside a plain layer",
         [](UIView *v, auto get) {
             [[v layer] insertSublayer:[CALayer layer] atIndex:0];
             [v insertSubview:get(9) atIndex:1];
             [v insertSubview:get(3) atIndex:0];
         },
         "3 1 9 2"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        UIView *view = tagged(0), *fresh = tagged(9);
        for (NSInteger tag : {1, 2, 3}) [view addSubview:tagged(tag)];
        c.change(view, ^(NSInteger tag) { return tag == 9 ? fresh : [view viewWithTag:tag]; });
        EXPECT_EQ(order(view), c.order);
    }
}

TEST(Hierarchy, AViewHearsWhereItGoes) {
    UIWindow *first = taggedWindow(10), *second = taggedWindow(20);
    UIView *outside = tagged(1), *inside = addColored(first, CGRectZero, nil, 2);
    Traveller *view = [Traveller new];
    struct {
        const char *what;
        std::function<void()> move;
        Lines heard; // in alphabetical order
    } const cases[] = {
        {"outside of windows", [=] { [outside addSubview:view]; }, {"is in view 1", "will go to view 1"}},
        {"into a window",
         [=] { [inside addSubview:view]; },
         {"is in view 2", "is in window 10", "will go to view 2", "will go to window 10"}},
        {"within the window", [=] { [first addSubview:view]; }, {"is in view 10", "will go to view 10"}},
        {"to another window",
         [=] { [second addSubview:view]; },
         {"is in view 20", "is in window 20", "will go to view 20", "will go to window 20"}},
        {"out",
         [=] { [view removeFromSuperview]; },
         {"is in view nothing", "is in window nothing", "will go to view nothing",
          "will go to window nothing"}},
        {"out again", [=] { [view removeFromSuperview]; }, {}},
        {"inside of one that goes",
         [=] {
             [outside addSubview:view];
             takeNotes();
             [first addSubview:outside];
         },
         {"is in window 10", "will go to window 10"}},
        {"and comes back",
         [=] { [outside removeFromSuperview]; },
         {"is in window nothing", "will go to window nothing"}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        c.move();
        EXPECT_EQ(sortedNotes(), c.heard);
    }
}

TEST(Hierarchy, ASuperviewAloneKeepsItsSubviewsAlive) {
    UIView *outer = [UIView new], *inner = [Traveller new];
    @autoreleasepool {
        [outer addSubview:inner];
        [inner release];
        takeNotes();
    }
    @autoreleasepool {
        [inner removeFromSuperview];
        EXPECT_EQ([inner superview], nil) << "who removes it may still use it";
        EXPECT_THAT(takeNotes(), ElementsAre("will go to view nothing", "is in view nothing"));
    }
    EXPECT_THAT(takeNotes(), ElementsAre("gone"));
    UIView *survivor = [[UIView new] autorelease];
    [outer addSubview:survivor];
    [outer release];
    EXPECT_EQ([survivor superview], nil) << "of one that is gone nothing is left";
}

TEST(Hierarchy, ATagIsFoundDepthFirst) {
    // 1 ( 2 ( 5 ) 3 ( 5 4 ) ): the first 5 in depth lies in 2.
    UIView *one = tagged(1), *two = tagged(2), *three = tagged(3), *five = tagged(5), *second = tagged(5);
    [one addSubview:two], [one addSubview:three];
    [two addSubview:five];
    [three addSubview:second], [three addSubview:tagged(4)];
    EXPECT_EQ([one viewWithTag:1], one);
    EXPECT_EQ([one viewWithTag:5], five);
    EXPECT_EQ([three viewWithTag:5], second);
    EXPECT_EQ([one viewWithTag:4], [[three subviews] objectAtIndex:1]);
    EXPECT_EQ([two viewWithTag:3], nil) << "neither beside nor above";
    [one bringSubviewToFront:two];
    EXPECT_EQ([one viewWithTag:5], second) << "from back to front";
    [second removeFromSuperview];
    EXPECT_EQ([one viewWithTag:5], five);
    EXPECT_TRUE([five isDescendantOfView:one] && [one isDescendantOfView:one]);
    EXPECT_FALSE([one isDescendantOfView:five] || [five isDescendantOfView:three]);
}
