// Of all codes of four digits only the stored one opens the lock, compared as text; what is no text opens
// nothing.
#include "Tweak/Lock/Passcode.h"

#include <gtest/gtest.h>

namespace {

using pendix::isPasscode;
using pendix::matchesPasscode;

TEST(Passcode, OnlyTheRightOneMatches) {
    for (NSString *stored in [NSArray arrayWithObjects:@"1234", @"0000", @"0012", @"9999", nil]) {
        NSString *matching = nil;
        int matches = 0;
        for (int code = 0; code < 10000; ++code) {
            @autoreleasepool {
                NSString *entered = [NSString stringWithFormat:@"%04d", code];
                if (!matchesPasscode(entered, stored)) continue;
                ++matches;
                matching = [entered retain];
            }
        }
        EXPECT_EQ(matches, 1);
        EXPECT_TRUE([matching isEqualToString:stored]);
        [matching release];
    }
}

TEST(Passcode, OtherValuesLockAndMatchNothing) {
    struct {
        id stored;
        bool locks;
    } const cases[] = {
        {nil, false},
        {@"", false},
        {[NSNumber numberWithInt:1234], true},
        {[NSArray arrayWithObject:@"1234"], true},
        {[@"1234" dataUsingEncoding:NSUTF8StringEncoding], true},
        {@" 1234", true},
        {@"01234", true},
        {@"123", true},
        {@"(null)", true},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(isPasscode(c.stored), c.locks) << [[c.stored description] UTF8String];
        EXPECT_FALSE(matchesPasscode(@"1234", c.stored)) << [[c.stored description] UTF8String];
    }
    EXPECT_FALSE(matchesPasscode(@"", nil));
}

} // namespace
