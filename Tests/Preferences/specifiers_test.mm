// Proves what a specifier is identified by, what it does when it is pressed or set, and which titles it has.
#include "Pages.h"
#include "Preferences/Specifiers/PSSpecifier+Further.h"
#include "Preferences/Specifiers/SpecifierState.h"
#include "UIKit/Tables/UITableView+Further.h"

using namespace harness;

namespace {

PSSpecifier *named(NSString *name) {
    return [PSSpecifier preferenceSpecifierNamed:name
                                          target:nil
                                             set:nullptr
                                             get:nullptr
                                          detail:Nil
                                            cell:PSLinkCell
                                            edit:Nil];
}

TEST(Specifiers, AreIdentifiedByTheFirstOfIdLabelKeyAndName) {
    PSSpecifier *specifier = named(@"Name");
    const std::pair<NSString *, NSString *> steps[] = {
        {@"key", @"the key"}, {@"label", @"the label"}, {@"id", @"the id"}};
    EXPECT_TRUE([[specifier identifier] isEqualToString:@"Name"]);
    for (auto [property, value] : steps) {
        [specifier setProperty:value forKey:property];
        EXPECT_TRUE([[specifier identifier] isEqualToString:value]) << [property UTF8String];
    }
    [specifier setIdentifier:@"another"];
    EXPECT_TRUE([[specifier propertyForKey:@"id"] isEqualToString:@"another"]);
    [specifier setProperty:nil forKey:@"id"];
    EXPECT_TRUE([[specifier identifier] isEqualToString:@"the label"]);
}

TEST(Specifiers, ShowTheShortTitleOfAValueWhereThereIsOne) {
    PSSpecifier *specifier = named(@"List");
    NSArray *values = [NSArray arrayWithObjects:@"a", @"b", nil];
    [specifier setValues:values titles:[NSArray arrayWithObjects:@"First", @"Second", nil]];
    EXPECT_TRUE([[specifier titleForValue:@"b"] isEqualToString:@"Second"]);
    EXPECT_EQ([specifier titleForValue:@"c"], nil);
    EXPECT_EQ([specifier titleForValue:nil], nil);
    [specifier setValues:values
                  titles:[NSArray arrayWithObjects:@"First", @"Second", nil]
             shortTitles:[NSArray arrayWithObjects:@"1st", @"2nd", nil]];
    EXPECT_TRUE([[specifier titleForValue:@"a"] isEqualToString:@"1st"]);
}

TEST(Specifiers, DoNothingWithoutSomebodyToAsk) {
    PSSpecifier *specifier = named(@"Lonely");
    EXPECT_EQ([specifier performGetter], nil);
    [specifier performSetterWithValue:@"x"];
    EXPECT_FALSE([specifier performAction]);
    specifier->target = [[NSObject new] autorelease];
    specifier->action = @selector(press:);
    EXPECT_FALSE([specifier performAction]) << "the target does not answer the action";
}

TEST(Specifiers, TakeTheButtonsActionBeforeTheGeneralOne) {
    TestList *list = [[TestList new] autorelease];
    PSSpecifier *row = makeRow(list, @"Row", PSButtonCell);
    EXPECT_TRUE([row performAction]);
    row->action = @selector(reloadData);
    [row setButtonAction:@selector(press:)];
    EXPECT_TRUE([row performAction]);
    EXPECT_THAT(takeNotes(), ElementsAre("Row pressed", "Row pressed"));
}

TEST(Specifiers, NameClassesAsObjectsOrAsText) {
    PSSpecifier *specifier = named(@"Row");
    EXPECT_EQ([specifier classForProperty:@"cellClass"], Nil);
    [specifier setProperty:@"PSSwitchTableCell" forKey:@"cellClass"];
    EXPECT_EQ([specifier classForProperty:@"cellClass"], [PSSwitchTableCell class]);
    [specifier setProperty:[PSSegmentTableCell class] forKey:@"cellClass"];
    EXPECT_EQ([specifier classForProperty:@"cellClass"], [PSSegmentTableCell class]);
    [specifier setProperty:@"NoSuchClass" forKey:@"cellClass"];
    EXPECT_EQ([specifier classForProperty:@"cellClass"], Nil);
}

} // namespace
