// Proves when the keyboard is there, what its keys type, and what a text field says of it.
#include "Pages.h"
#include "UIKit/Input/Keyboard.h"
#include "UIKit/UIKit+Further.h"

using namespace harness;

@interface TypingWitness : NSObject
@end
@implementation TypingWitness
- (void)changed:(UITextField *)field {
    note("now " + std::string([[field text] UTF8String]));
}
@end

namespace {

UITextField *makeField() {
    UITextField *field = [[[UITextField alloc] initWithFrame:CGRectMake(20, 100, 200, 30)] autorelease];
    [field addTarget:[[TypingWitness new] autorelease]
                  action:@selector(changed:)
        forControlEvents:UIControlEventEditingChanged];
    return field;
}

// In a window, with the keyboard for digits.
UITextField *showField() {
    UITextField *field = makeField();
    [field setKeyboardType:UIKeyboardTypeNumberPad];
    UIWindow *window = makeWindow();
    [window makeKeyWindow];
    [window addSubview:field];
    [field becomeFirstResponder];
    waitFor(1);
    return field;
}

void tapKey(NSString *key) {
    UIView *view = sim::keyboardKey(key);
    ASSERT_NE(view, nil) << [key UTF8String];
    tapAt(centreOf(view));
}

TEST(Typing, KeysTypeIntoTheFieldAndSaySo) {
    UITextField *field = showField();
    tapKey(@"4");
    tapKey(@"2");
    tapKey(@"");
    EXPECT_THAT(takeNotes(), ElementsAre("now 4", "now 42", "now 4"));
    tapKey(@"");
    tapKey(@"");
    EXPECT_THAT(takeNotes(), ElementsAre("now ")) << "nothing is left to delete";
    EXPECT_EQ(sim::keyboardKey(@"a"), nil) << "a pad of digits has no letters";
    EXPECT_EQ(sim::keyboardKey(@" "), nil);
    EXPECT_FALSE([field hasText]);
}

TEST(Typing, AHardwareKeyboardHasEveryCharacter) {
    UITextField *field = showField();
    sim::typeText(@"x");
    sim::typeText(@"é");
    sim::typeDelete();
    EXPECT_THAT(takeNotes(), ElementsAre("now x", "now xé", "now x"));
    EXPECT_TRUE([[field text] isEqualToString:@"x"]);
}

TEST(Typing, SettingTheTextSaysNothing) {
    UITextField *field = showField();
    [field setText:@"12"];
    EXPECT_THAT(takeNotes(), IsEmpty());
    [field setText:nil];
    EXPECT_TRUE([[field text] isEqualToString:@""]) << "never nil";
    tapKey(@"1");
    EXPECT_THAT(takeNotes(), ElementsAre("now 1"));
}

TEST(Typing, AFieldOutsideAWindowTakesTheFocusWhenItComesIntoOne) {
    UITextField *field = makeField();
    EXPECT_FALSE([field becomeFirstResponder]);
    EXPECT_EQ(sim::keyboardKey(@"1"), nil);
    [makeWindow() addSubview:field];
    EXPECT_TRUE([field isFirstResponder]);
    EXPECT_NE(sim::keyboardKey(@"1"), nil);
}

TEST(Typing, TheKeyboardGoesWithTheFieldThatLeaves) {
    UITextField *field = showField();
    [field removeFromSuperview];
    EXPECT_FALSE([field isFirstResponder]);
    EXPECT_EQ(sim::keyboardKey(@"1"), nil);
    sim::typeText(@"1");
    EXPECT_THAT(takeNotes(), IsEmpty()) << "nobody is there to type for";
}

TEST(Typing, TheFocusMovesFromFieldToField) {
    UITextField *first = showField(), *second = makeField();
    [[first window] addSubview:second];
    [second becomeFirstResponder];
    EXPECT_FALSE([first isFirstResponder]);
    sim::typeText(@"z");
    EXPECT_TRUE([[second text] isEqualToString:@"z"]);
    EXPECT_FALSE([first hasText]);
    [second resignFirstResponder];
    waitFor(1);
    EXPECT_EQ(sim::keyboardKey(@"1"), nil);
}

} // namespace
