// The count of live objects: every way of making one is counted under its class and taken off at its end, so
// that a leak shows as a number that grows.
#import <Foundation/Foundation.h>

#include "Runtime/Objc/Census.hpp"

#include <functional>
#include <gtest/gtest.h>

@interface Counted : NSObject <NSCopying, NSCoding>
@end

@implementation Counted
- (id)copyWithZone:(NSZone *)zone {
    return NSCopyObject(self, 0, zone);
}
- (id)initWithCoder:(NSCoder *)coder {
    return [super init];
}
- (void)encodeWithCoder:(NSCoder *)coder {
}
@end

@interface CountedChild : Counted
@end

@implementation CountedChild
@end

TEST(Census, CountsEachClassAloneAndAllWaysOfMakingOne) {
    NSMutableArray *kept = [NSMutableArray new];
    @autoreleasepool {
        for (int i = 0; i < 10; ++i) [kept addObject:[[Counted new] autorelease]];
        [kept addObject:[[[CountedChild alloc] init] autorelease]];
        [kept addObject:[[[Counted allocWithZone:nullptr] init] autorelease]];
        [kept addObject:[[[kept lastObject] copy] autorelease]];
        [kept addObject:[NSKeyedUnarchiver
                            unarchiveObjectWithData:[NSKeyedArchiver
                                                        archivedDataWithRootObject:[kept lastObject]]]];
        EXPECT_EQ(sim::liveCount("Counted"), 13u);
    }
    EXPECT_EQ(sim::liveCount("Counted"), 13u);
    EXPECT_EQ(sim::liveCount("CountedChild"), 1u);
    EXPECT_EQ(sim::liveObjects()["Counted"], 13u);
    [kept release];
    EXPECT_EQ(sim::liveCount("Counted"), 0u);
    EXPECT_FALSE(sim::liveObjects().contains("Counted"));
    EXPECT_EQ(sim::liveCount("NoSuchClass"), 0u);
}

// Foundation's clusters have classes and ways of their own: whatever a loop makes and releases leaves no
// trace.
TEST(Census, ReturnsToWhereItWasForFoundationsClasses) {
    struct {
        const char *what;
        std::function<id()> make;
    } const ways[] = {
        {"string", [] { return [NSString stringWithFormat:@"%d %s", 7, "a long enough text for the heap"]; }},
        {"mutable string", [] { return [NSMutableString stringWithString:@"abc"]; }},
        {"substring", [] { return [[NSString stringWithUTF8String:"abcdefghij"] substringFromIndex:3]; }},
        {"number", [] { return [NSNumber numberWithInt:123456]; }},
        {"double", [] { return [NSNumber numberWithDouble:0.5]; }},
        {"array", [] { return [NSArray arrayWithObjects:@"a", @"b", nil]; }},
        {"mutable array", [] { return [NSMutableArray arrayWithObject:@"a"]; }},
        {"dictionary", [] { return [NSDictionary dictionaryWithObject:@"a" forKey:@"b"]; }},
        {"mutable dictionary", [] { return [[[NSDictionary dictionary] mutableCopy] autorelease]; }},
        {"array made immutable",
         [] { return [[NSFileManager defaultManager] contentsOfDirectoryAtPath:@"/" error:nullptr]; }},
        {"set", [] { return [NSSet setWithObject:@"a"]; }},
        {"data", [] { return [NSData dataWithBytes:"abc" length:3]; }},
        {"date", [] { return [NSDate date]; }},
        {"value", [] { return [NSValue valueWithPointer:nullptr]; }},
        {"exception", [] { return [NSException exceptionWithName:@"n" reason:@"r" userInfo:nil]; }},
        {"attributed string", [] { return [[[NSAttributedString alloc] initWithString:@"a"] autorelease]; }},
    };
    auto total = [] {
        long sum = 0;
        for (const auto &[name, count] : sim::liveObjects()) sum += static_cast<long>(count);
        return sum;
    };
    for (const auto &[what, make] : ways) {
        auto round = [&, make = make] {
            @autoreleasepool {
                for (int i = 0; i < 100; ++i) make();
            }
        };
        round(); // what Foundation keeps from a first use
        long before = total();
        @autoreleasepool {
            for (int i = 0; i < 100; ++i) make();
            EXPECT_GE(total(), before + 100) << what;
        }
        round();
        EXPECT_EQ(total(), before) << what;
    }
}
