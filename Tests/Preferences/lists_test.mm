// Proves how a list falls into groups, finds its specifiers, and shows single ones anew.
#include "Pages.h"

#include "Preferences/Lists/PSListController+Further.h"
#include "UIKit/Tables/UITableView+Further.h"

using namespace harness;

namespace {

NSArray *twoGroups(TestList *list) {
    return [NSArray arrayWithObjects:makeGroup(@"About the switch."), makeRow(list, @"Switch", PSSwitchCell),
                                     makeGroup(nil), makeRow(list, @"Link", PSLinkCell),
                                     makeRow(list, @"Button", PSButtonCell), nil];
}

std::string footerOf(PSListController *list, NSInteger section) {
    NSString *footer = [list tableView:[list table] titleForFooterInSection:section];
    return footer ? [footer UTF8String] : "none";
}

bool isOn(PSListController *list, NSInteger index) {
    id cell = [list cachedCellForSpecifier:[list specifierAtIndex:index]];
    return [static_cast<UISwitch *>([static_cast<PSControlTableCell *>(cell) control]) isOn];
}

TEST(Lists, FallIntoGroupsAndRows) {
    TestList *list = showList(twoGroups);
    ASSERT_EQ([list numberOfGroups], 2);
    const struct {
        NSInteger index, group, row;
    } places[] = {{0, 0, -1}, {1, 0, 0}, {2, 1, -1}, {3, 1, 0}, {4, 1, 1}};
    for (auto [index, wantedGroup, wantedRow] : places) {
        NSInteger group = 9, row = 9;
        EXPECT_TRUE([list getGroup:&group row:&row ofSpecifierAtIndex:index]);
        EXPECT_EQ(group, wantedGroup);
        EXPECT_EQ(row, wantedRow);
    }
    EXPECT_FALSE([list getGroup:nullptr row:nullptr ofSpecifierAtIndex:5]);
    EXPECT_EQ(footerOf(list, 0), "About the switch.");
    EXPECT_EQ(footerOf(list, 1), "none");
}

TEST(Lists, KeepTheirIndexOfIdentifiersUntilTheyAreReloaded) {
    TestList *list = showList(twoGroups);
    PSSpecifier *link = [list specifierForID:@"Link"];
    EXPECT_EQ(link, [list specifierAtIndex:3]);
    // What is put in behind the list's back is not found by its identifier …
    NSArray *others = [NSArray arrayWithObject:makeRow(list, @"Other", PSLinkCell)];
    [list->_specifiers release];
    list->_specifiers = [others retain];
    EXPECT_EQ([list specifierForID:@"Other"], nil);
    EXPECT_EQ([list specifierForID:@"Link"], link);
    // … until it is set as it should be.
    [list setSpecifiers:others];
    EXPECT_NE([list specifierForID:@"Other"], nil);
    EXPECT_EQ([list specifierForID:@"Link"], nil);
    EXPECT_EQ([list numberOfGroups], 1) << "rows without a group have one of their own";
}

TEST(Lists, AskForTheirSpecifiersAnewWhenReloaded) {
    TestList *list = showList(twoGroups);
    PSSpecifier *before = [[[list specifierAtIndex:1] retain] autorelease];
    [list reload];
    EXPECT_EQ([list specifierAtIndex:1], before) << "-reload keeps them";
    [list reloadSpecifiers];
    EXPECT_NE([list specifierAtIndex:1], before);
    EXPECT_EQ([list indexOfSpecifier:before], NSInteger(NSNotFound)) << "rows are found by identity";
}

TEST(Lists, ShowASpecifierAnewWithItsValue) {
    TestList *list = showList(twoGroups);
    [list->values setObject:[NSNumber numberWithBool:YES] forKey:@"Switch"];
    EXPECT_FALSE(isOn(list, 1)) << "nobody has asked the list to look";
    [list reloadSpecifier:makeRow(list, @"Switch", PSSwitchCell)];
    EXPECT_FALSE(isOn(list, 1)) << "an equal specifier is another one";
    [list reloadSpecifier:[list specifierAtIndex:1]];
    EXPECT_TRUE(isOn(list, 1));
    [list->values removeAllObjects];
    [list reloadSpecifierID:@"Switch"];
    EXPECT_FALSE(isOn(list, 1));
}

TEST(Lists, ShowTheRowsOfAGroupAnewWithIt) {
    TestList *list = showList(twoGroups);
    CGFloat before = [[list table] rectForSection:1].origin.y;
    [list->values setObject:[NSNumber numberWithBool:YES] forKey:@"Switch"];
    [[list specifierAtIndex:0]
        setProperty:
            @"A text that is so much longer than the one before that it takes a second line, or even more."
             forKey:@"footerText"];
    [list reloadSpecifierAtIndex:0 animated:YES];
    waitFor(1);
    EXPECT_TRUE(isOn(list, 1));
    EXPECT_GT([[list table] rectForSection:1].origin.y, before) << "the longer footer moves what follows";
}

} // namespace

// As wide as it is told, with a height that depends on it.
@interface TestHeader : PSTableCell <PSHeaderFooterView>
@end
@implementation TestHeader
- (instancetype)initWithSpecifier:(PSSpecifier *)specifier {
    harness::note("header made");
    return [self initWithStyle:UITableViewCellStyleDefault reuseIdentifier:@"header" specifier:specifier];
}
- (CGFloat)preferredHeightForWidth:(CGFloat)width {
    return width / 3;
}
@end

namespace {

TEST(Lists, MakeTheHeaderOfAGroupFromItsClassOnce) {
    TestList *list = showList([](TestList *list) {
        PSSpecifier *group = makeGroup(nil);
        [group setProperty:@"TestHeader" forKey:@"headerCellClass"];
        return [NSArray arrayWithObjects:group, makeRow(list, @"Row", PSLinkCell), nil];
    });
    EXPECT_EQ([[list table] rectForHeaderInSection:0].size.height, 125);
    EXPECT_EQ(viewsOf([list view], [TestHeader class]).size(), 1u);
    [[list table] reloadData];
    waitFor(0);
    EXPECT_THAT(takeNotes(), ElementsAre("header made"));
    [list reloadSpecifiers];
    waitFor(0);
    EXPECT_THAT(takeNotes(), ElementsAre("header made")) << "of the new specifier";
    EXPECT_EQ(viewsOf([list view], [TestHeader class]).size(), 1u);
}

} // namespace
