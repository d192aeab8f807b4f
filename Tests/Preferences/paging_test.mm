// Proves how pages turn under a finger, what is asked for on the way, and what the delegate hears.
#include "Pages.h"

using namespace harness;

// A ring or a row of pages.
@interface PagesWitness : NSObject <UIPageViewControllerDataSource, UIPageViewControllerDelegate> {
@public
    std::vector<NotingPage *> pages; // retained by nobody else for the life of the case
    bool ring;
}
@end

@implementation PagesWitness

- (NSInteger)placeOf:(UIViewController *)page {
    return std::find(pages.begin(), pages.end(), page) - pages.begin();
}

- (UIViewController *)pageAt:(NSInteger)place {
    auto count = static_cast<NSInteger>(pages.size());
    if (ring) place = (place + count) % count;
    return place < 0 || place >= count ? nil : pages[static_cast<size_t>(place)];
}

- (UIViewController *)pageViewController:(UIPageViewController *)pager
      viewControllerBeforeViewController:(UIViewController *)page {
    return [self pageAt:[self placeOf:page] - 1];
}
- (UIViewController *)pageViewController:(UIPageViewController *)pager
       viewControllerAfterViewController:(UIViewController *)page {
    return [self pageAt:[self placeOf:page] + 1];
}

- (void)pageViewController:(UIPageViewController *)pager
         didFinishAnimating:(BOOL)finished
    previousViewControllers:(NSArray *)previous
        transitionCompleted:(BOOL)completed {
    std::string from = static_cast<NotingPage *>([previous objectAtIndex:0])->name;
    std::string to = static_cast<NotingPage *>([[pager viewControllers] objectAtIndex:0])->name;
    note(completed ? from + " to " + to : "back to " + to);
}

@end

namespace {

struct Stage {
    UIPageViewController *pager = nil;
    PagesWitness *witness = nil;
    std::string current() const {
        return static_cast<NotingPage *>([[pager viewControllers] objectAtIndex:0])->name;
    }
};

Stage showPages(size_t count, bool ring, size_t first) {
    Stage stage;
    stage.witness = [PagesWitness new];
    stage.witness->ring = ring;
    for (size_t i = 0; i < count; ++i)
        stage.witness->pages.push_back([makePage(std::string(1, static_cast<char>('A' + i))) retain]);
    stage.pager = [[UIPageViewController alloc]
        initWithTransitionStyle:UIPageViewControllerTransitionStyleScroll
          navigationOrientation:UIPageViewControllerNavigationOrientationHorizontal
                        options:nil];
    [stage.pager setDelegate:stage.witness];
    [stage.pager setDataSource:stage.witness];
    [stage.pager setViewControllers:[NSArray arrayWithObject:stage.witness->pages[first]]
                          direction:UIPageViewControllerNavigationDirectionForward
                           animated:NO
                         completion:nil];
    show(stage.pager);
    takeNotes();
    return stage;
}

// The finger goes to the left for what comes next.
void swipe(CGFloat way) {
    flingFromTo({187 - way / 2, 300}, {187 + way / 2, 300}, 0.2);
    waitFor(2);
}

TEST(Paging, ASwipeTurnsOnePage) {
    Stage stage = showPages(4, false, 1);
    swipe(-200);
    EXPECT_EQ(stage.current(), "C");
    EXPECT_THAT(takeNotes(), ElementsAre("B will disappear", "B did disappear", "C will appear",
                                         "C did appear", "B to C"));
    swipe(200);
    swipe(200);
    EXPECT_EQ(stage.current(), "A");
}

TEST(Paging, ThereIsNoWayPastTheEnds) {
    Stage stage = showPages(2, false, 0);
    swipe(200);
    EXPECT_EQ(stage.current(), "A");
    EXPECT_THAT(takeNotes(), ElementsAre("back to A"));
    swipe(-200);
    swipe(-200);
    EXPECT_EQ(stage.current(), "B");
}

TEST(Paging, ARingHasNoEnds) {
    Stage stage = showPages(3, true, 0);
    std::string seen;
    for (CGFloat way : {200, 200, -200, -200, -200}) {
        swipe(way);
        seen += stage.current();
    }
    EXPECT_EQ(seen, "CBCAB");
}

TEST(Paging, APageThatIsPulledALittleComesBack) {
    Stage stage = showPages(3, false, 1);
    dragFromTo({200, 300}, {120, 300}, 0.3);
    waitFor(2);
    EXPECT_EQ(stage.current(), "B");
    EXPECT_THAT(takeNotes(), ElementsAre("back to B"));
}

TEST(Paging, PagesThatTheProgramSetsAreThereAtOnce) {
    Stage stage = showPages(4, false, 0);
    [stage.pager setViewControllers:[NSArray arrayWithObject:stage.witness->pages[2]]
                          direction:UIPageViewControllerNavigationDirectionForward
                           animated:YES
                         completion:nil];
    waitFor(1);
    EXPECT_EQ(stage.current(), "C");
    for (const auto &line : takeNotes())
        EXPECT_EQ(line.find(" to "), line.npos) << "the delegate hears nothing";
    swipe(-200);
    EXPECT_EQ(stage.current(), "D") << "its own neighbours are beside it";
    EXPECT_EQ([[stage.witness->pages[0] view] superview], nil) << "pages far away are let go";
}

} // namespace
