// Blocks: once copied they keep what they captured and let go of it at their end, share __block variables,
// and live in collections like any other object. A regression shows as a crash in a later completion, or as a
// leak.
#import <Foundation/Foundation.h>

#include <gtest/gtest.h>
#include <objc/runtime.h>

static int alive;

@interface Captured : NSObject
@end

@implementation Captured
- (id)init {
    ++alive;
    return [super init];
}
- (void)dealloc {
    --alive;
    [super dealloc];
}
@end

using Block = void (^)();
using Number = int (^)();

TEST(Blocks, RetainWhatTheyCaptureOnceCopied) {
    Captured *object = [Captured new];
    Block onStack = ^{ [object self]; };
    EXPECT_EQ([object retainCount], 1u);
    Block copy = [onStack copy], again = [copy copy];
    EXPECT_EQ(copy, again);
    EXPECT_EQ([object retainCount], 2u);
    [object release];
    [copy release];
    EXPECT_EQ(alive, 1);
    [again release];
    EXPECT_EQ(alive, 0);
}

TEST(Blocks, ShareVariablesWithTheFrameAndOneAnother) {
    __block int count = 0;
    Block add = [[^{ ++count; } copy] autorelease];
    Block addTen = [[^{ count += 10; } copy] autorelease];
    add();
    addTen();
    ++count;
    EXPECT_EQ(count, 12);
}

static Number counterFrom(int start) {
    __block int count = start;
    return [[^{ return ++count; } copy] autorelease];
}

TEST(Blocks, KeepSharedVariablesAfterTheFrameIsGone) {
    Number first = counterFrom(10), second = counterFrom(20);
    EXPECT_EQ(first(), 11);
    EXPECT_EQ(second(), 21);
    EXPECT_EQ(first(), 12);
}

TEST(Blocks, DoNotRetainAnObjectInABlockVariable) {
    __block Captured *object = [Captured new];
    Block copy = [^{ [object self]; } copy];
    EXPECT_EQ([object retainCount], 1u);
    [copy release];
    EXPECT_EQ(alive, 1);
    [object release];
    EXPECT_EQ(alive, 0);
}

TEST(Blocks, CopyTheBlocksInsideThem) {
    Captured *object = [Captured new];
    Block copy;
    {
        Number inner = ^{ return static_cast<int>([object retainCount]); };
        Block middle = ^{ inner(); };
        copy = [^{ middle(); } copy];
    }
    [object release];
    copy();
    EXPECT_EQ(alive, 1);
    [copy release];
    EXPECT_EQ(alive, 0);
}

TEST(Blocks, LiveInCollections) {
    NSMutableArray *list = [NSMutableArray new];
    for (int i = 0; i < 3; ++i) {
        Captured *object = [[Captured new] autorelease];
        Number number = ^{ return i + static_cast<int>([object retainCount] > 0); };
        [list addObject:[[number copy] autorelease]];
    }
    NSDictionary *byName = [NSDictionary dictionaryWithObject:[list objectAtIndex:1] forKey:@"second"];
    EXPECT_EQ(static_cast<Number>([byName objectForKey:@"second"])(), 2);
    EXPECT_EQ([list indexOfObject:[list objectAtIndex:2]], 2u);
    EXPECT_TRUE([[list lastObject] isKindOfClass:[NSObject class]]);
    [list release];
}

TEST(Blocks, WithoutCapturesAreOneForAll) {
    Block global = ^{};
    EXPECT_EQ(static_cast<id>([global copy]), static_cast<id>(global));
    [global release];
    [global release];
    global();
}

TEST(Blocks, PassThroughDelayedUseLikeAnyObject) {
    Captured *object = [Captured new];
    @autoreleasepool {
        Block copy = [[^{ [object self]; } copy] autorelease];
        [[copy retain] autorelease];
        [object release];
        copy();
        EXPECT_EQ(alive, 1);
    }
    EXPECT_EQ(alive, 0);
}

static id itself(id self, SEL) { return self; }

// As when a library with a category on NSObject is loaded: the runtime makes the tables of all classes anew.
TEST(Blocks, AnswerAfterTheirSuperclassesHaveChanged) {
    Captured *object = [[Captured new] autorelease];
    Block onStack = ^{ [object self]; };
    Block global = ^{};
    Block copy = [[onStack copy] autorelease];
    for (int i = 0; i < 100; ++i) {
        NSString *name = [NSString stringWithFormat:@"addedToEverything%d", i];
        class_addMethod([NSObject class], NSSelectorFromString(name), reinterpret_cast<IMP>(itself), "@@:");
        for (id block : {static_cast<id>(onStack), static_cast<id>(global), static_cast<id>(copy)}) {
            EXPECT_EQ([block self], block);
            EXPECT_EQ([block performSelector:NSSelectorFromString(name)], block);
        }
    }
    [[[onStack copy] autorelease] description];
}
