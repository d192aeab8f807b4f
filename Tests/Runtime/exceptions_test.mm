// Errors that end a process on a device: they are recorded, raised, and end this one too, saying why.
#import <Foundation/Foundation.h>

#include "Support.hpp"

#include <csignal>
#include <gmock/gmock.h>

using support::deathBy;
using testing::ElementsAre;
using testing::HasSubstr;

@interface Puzzled : NSObject
@end
@implementation Puzzled
- (void)hear:(NSNotification *)notification {
    [NSException raise:NSGenericException format:@"did not want to hear %@", [notification name]];
}
@end

@protocol Unknown
- (void)someSelector:(int)a other:(id)b;
+ (void)classSelector;
@end

namespace {

std::string reasonOf(void (^action)()) {
    @try {
        action();
    } @catch (NSException *exception) {
        return std::string([[exception name] UTF8String]) + ": " + [[exception reason] UTF8String];
    }
    return "nothing";
}

} // namespace

TEST(UnknownSelectors, AreRecordedAndRaised) {
    id object = [[Puzzled new] autorelease];
    EXPECT_EQ(
        reasonOf(^{ [object someSelector:1 other:nil]; }),
        "NSInvalidArgumentException: -[Puzzled someSelector:other:]: unrecognized selector sent to instance");
    EXPECT_EQ(reasonOf(^{ [(id)[Puzzled class] classSelector]; }),
              "NSInvalidArgumentException: +[Puzzled classSelector]: unrecognized selector sent to class");
    EXPECT_EQ(reasonOf(^{ [object performSelector:@selector(classSelector)]; }),
              "NSInvalidArgumentException: -[Puzzled classSelector]: unrecognized selector sent to instance");
    EXPECT_EQ(reasonOf(^{ [(id)nil someSelector:1 other:nil]; }), "nothing");
    EXPECT_THAT(support::events(), ElementsAre("unrecognized class=Puzzled selector=someSelector:other:",
                                               "unrecognized class=Puzzled selector=classSelector",
                                               "unrecognized class=Puzzled selector=classSelector"));
}

TEST(UncaughtExceptions, EndTheProcessWithTheirReason) {
    auto death = deathBy([] { [(id)[[Puzzled new] autorelease] someSelector:1 other:nil]; });
    EXPECT_EQ(death.signal, SIGABRT);
    EXPECT_THAT(death.report,
                HasSubstr("signal SIGABRT\nreason NSInvalidArgumentException: -[Puzzled "
                          "someSelector:other:]: unrecognized selector sent to instance\nframe "));
    death = deathBy([] { [[NSArray array] objectAtIndex:3]; });
    EXPECT_EQ(death.signal, SIGABRT);
    EXPECT_THAT(death.report, HasSubstr("reason NSRangeException"));
    death = deathBy([] {
        NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
        [center addObserver:[Puzzled new] selector:@selector(hear:) name:@"News" object:nil];
        [center postNotificationName:@"News" object:nil];
    });
    EXPECT_EQ(death.signal, SIGABRT);
    EXPECT_THAT(death.report, HasSubstr("reason NSGenericException: did not want to hear News"));
}
