// Proves what a finger does to rows: switches, links, choices, segments and buttons.
#include "Pages.h"

#include "Preferences/Cells/PSTableCell+Further.h"
#include "Preferences/Lists/PSListController+Further.h"
#include "UIKit/UIKit+Further.h"

using namespace harness;

namespace {

NSArray *letters(NSString *suffix) {
    return [NSArray arrayWithObjects:[@"a" stringByAppendingString:suffix],
                                     [@"b" stringByAppendingString:suffix],
                                     [@"c" stringByAppendingString:suffix], nil];
}

NSArray *everyKind(TestList *list) {
    PSSpecifier *choice = makeRow(list, @"Choice", PSLinkListCell, [PSListItemsController class]);
    [choice setValues:letters(@"") titles:letters(@" title")];
    PSSpecifier *segment = makeRow(list, @"Segment", PSSegmentCell);
    [segment setValues:letters(@"") titles:letters(@"!")];
    return [NSArray arrayWithObjects:makeGroup(nil), makeRow(list, @"Switch", PSSwitchCell),
                                     makeRow(list, @"Link", PSLinkCell, [TestList class]),
                                     makeRow(list, @"Action", PSLinkCell), choice, segment,
                                     makeRow(list, @"Button", PSButtonCell),
                                     makeRow(list, @"Text", PSStaticTextCell), nil];
}

enum { kSwitch = 1, kLink, kAction, kChoice, kSegment, kButton, kText };

TestList *showEveryKind() { return showList(everyKind); }

PSTableCell *cellAt(PSListController *list, NSInteger index) {
    return static_cast<PSTableCell *>([list cachedCellForSpecifier:[list specifierAtIndex:index]]);
}

UIViewController *top(UIViewController *page) { return [[page navigationController] topViewController]; }

TEST(Cells, SwitchesSetABooleanAndNothingElse) {
    TestList *list = showEveryKind();
    tapControl(list, kSwitch);
    tapControl(list, kSwitch);
    EXPECT_THAT(takeNotes(), ElementsAre("Switch = 1", "Switch = 0"));
    tapRow(list, kSwitch);
    EXPECT_THAT(takeNotes(), IsEmpty()) << "the row beside the switch is not pressed";
    EXPECT_EQ(top(list), list);
}

TEST(Cells, SwitchesFollowASwipeToItsSide) {
    TestList *list = showEveryKind();
    CGPoint centre = centreOf([static_cast<PSControlTableCell *>(cellAt(list, kSwitch)) control]);
    auto swipe = [&](CGFloat way) { dragFromTo(centre, {centre.x + way, centre.y}, 0.2); };
    swipe(-30);
    EXPECT_THAT(takeNotes(), IsEmpty()) << "it is off already";
    swipe(30);
    swipe(30);
    EXPECT_THAT(takeNotes(), ElementsAre("Switch = 1"));
}

TEST(Cells, LinksOpenTheirPageWithTheRowsTitle) {
    TestList *list = showEveryKind();
    tapRow(list, kLink);
    auto *page = static_cast<TestList *>(top(list));
    ASSERT_NE(page, list);
    EXPECT_TRUE([page isKindOfClass:[TestList class]]);
    EXPECT_TRUE([[page title] isEqualToString:@"Link"]);
    EXPECT_EQ([page specifier], [list specifierAtIndex:kLink]);
    EXPECT_EQ([page parentController], list);
    [[list navigationController] popViewControllerAnimated:YES];
    waitFor(1);
    EXPECT_EQ([[list table] indexPathForSelectedRow], nil) << "the row is let go on the way back";
}

TEST(Cells, LinksWithoutAPageAndButtonsCallTheirAction) {
    TestList *list = showEveryKind();
    tapRow(list, kAction);
    tapRow(list, kButton);
    tapRow(list, kText);
    EXPECT_THAT(takeNotes(), ElementsAre("Action pressed", "Button pressed"));
    EXPECT_EQ(top(list), list);
}

TEST(Cells, ChoicesAreTakenOnAPageThatStaysOpen) {
    TestList *list = showEveryKind();
    [list->values setObject:@"a" forKey:@"Choice"];
    [list reload];
    waitFor(0);
    EXPECT_TRUE([[[cellAt(list, kChoice) valueLabel] text] isEqualToString:@"a title"]);
    tapRow(list, kChoice);
    auto *page = static_cast<PSListItemsController *>(top(list));
    ASSERT_TRUE([page isKindOfClass:[PSListItemsController class]]);
    auto ticked = [&](NSInteger index) {
        return [cellAt(page, index) accessoryType] == UITableViewCellAccessoryCheckmark;
    };
    EXPECT_TRUE(ticked(1));
    tapRow(page, 3);
    EXPECT_THAT(takeNotes(), ElementsAre("Choice = c"));
    EXPECT_EQ(top(list), page);
    EXPECT_FALSE(ticked(1));
    EXPECT_TRUE(ticked(3));
    [[list navigationController] popViewControllerAnimated:YES];
    waitFor(1);
    EXPECT_TRUE([[[cellAt(list, kChoice) valueLabel] text] isEqualToString:@"c title"]);
}

TEST(Cells, SegmentsSetTheValueOfTheirPlace) {
    TestList *list = showEveryKind();
    auto *control = static_cast<UISegmentedControl *>(
        [static_cast<PSControlTableCell *>(cellAt(list, kSegment)) control]);
    EXPECT_EQ([control selectedSegmentIndex], NSInteger(UISegmentedControlNoSegment));
    auto tapSegment = [&](NSUInteger index) {
        tapAt(centreOf([[control subviews] objectAtIndex:index]));
        waitFor(0.5);
    };
    tapSegment(2);
    tapSegment(2);
    tapSegment(0);
    EXPECT_THAT(takeNotes(), ElementsAre("Segment = c", "Segment = a")) << "the selected one says nothing";
    EXPECT_EQ([control selectedSegmentIndex], 0);
}

TEST(Cells, DisabledRowsTakeNoTouch) {
    TestList *list = showEveryKind();
    for (NSInteger index : {kSwitch, kButton})
        [[list specifierAtIndex:index] setProperty:[NSNumber numberWithBool:NO] forKey:@"enabled"];
    [list reload];
    waitFor(0);
    tapControl(list, kSwitch);
    tapRow(list, kButton);
    EXPECT_THAT(takeNotes(), IsEmpty());
}

TEST(Cells, ScrollingPressesNothing) {
    TestList *list = showEveryKind();
    CGPoint row = centreOf(cellAt(list, kAction));
    dragFromTo(row, {row.x, row.y - 120}, 0.3);
    waitFor(1);
    EXPECT_THAT(takeNotes(), IsEmpty());
}

} // namespace
