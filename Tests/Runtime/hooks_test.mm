// Hooks: a replacement runs instead of a method whatever the method takes and returns, the previous
// implementation gets its arguments as they came, each of its runs is an event, and a hook on nothing does no
// harm.
#import <Foundation/Foundation.h>

#include "Runtime/Objc/HookCounts.hpp"
#include "Runtime/Process/Events.hpp"
#include "Support.hpp"

#include <Substrate/CydiaSubstrate.h>

#include <gmock/gmock.h>

namespace {

struct Pair {
    double x, y;
};
struct Quad {
    double x, y, w, h;
};

} // namespace

@interface HookedParent : NSObject
- (int)number;
+ (int)classNumber;
@end

@implementation HookedParent
- (int)number {
    return 1;
}
+ (int)classNumber {
    return 10;
}
@end

@interface HookedChild : HookedParent
- (float)third:(float)value;
- (double)half:(double)value;
- (BOOL)isEven:(unsigned char)value;
- (Pair)pairOf:(double)x and:(double)y;
- (Quad)quadOf:(double)x integer:(long)y;
- (NSString *)join:(int)a
                 b:(long)b
                 c:(double)c
                 d:(char)d
                 e:(float)e
                 f:(long)f
                 g:(double)g
                 h:(short)h
                 i:(double)i
                 j:(double)j
                 k:(double)k
                 l:(double)l
                 m:(double)m
                 n:(double)n
                 o:(id)o;
@end

@implementation HookedChild
- (float)third:(float)value {
    return value / 3;
}
- (double)half:(double)value {
    return value / 2;
}
- (BOOL)isEven:(unsigned char)value {
    return value % 2 == 0;
}
- (Pair)pairOf:(double)x and:(double)y {
    return {x, y};
}
- (Quad)quadOf:(double)x integer:(long)y {
    return {x, static_cast<double>(y), 3, 4};
}
- (NSString *)join:(int)a
                 b:(long)b
                 c:(double)c
                 d:(char)d
                 e:(float)e
                 f:(long)f
                 g:(double)g
                 h:(short)h
                 i:(double)i
                 j:(double)j
                 k:(double)k
                 l:(double)l
                 m:(double)m
                 n:(double)n
                 o:(id)o {
    return [NSString stringWithFormat:@"%d %ld %g %d %g %ld %g %d %g %g %g %g %g %g %@", a, b, c, d, e, f, g,
                                      h, i, j, k, l, m, n, o];
}
@end

namespace {

// The previous implementation as a function of its own type, and the replacement that goes on in it.
template <int Tag, typename Result, typename... Arguments>
struct Hook {
    static inline Result (*original)(id, SEL, Arguments...);
    static inline int runs;
    static Result replacement(id self, SEL selector, Arguments... arguments) {
        ++runs;
        return original(self, selector, arguments...);
    }
    static void install(Class target, SEL selector) {
        MSHookMessageEx(target, selector, reinterpret_cast<IMP>(replacement),
                        reinterpret_cast<IMP *>(&original));
    }
};

int fixedNumber(id, SEL) { return 42; }

// Leaves nothing in any register that may carry an argument.
void clobberRegisters(const sim::Value &) {
    __asm__ volatile("xorl %%eax, %%eax\n xorl %%edi, %%edi\n xorl %%esi, %%esi\n xorl %%edx, %%edx\n"
                     "xorl %%ecx, %%ecx\n xorl %%r8d, %%r8d\n xorl %%r9d, %%r9d\n xorl %%r10d, %%r10d\n"
                     "xorl %%r11d, %%r11d\n pxor %%xmm0, %%xmm0\n pxor %%xmm1, %%xmm1\n pxor %%xmm2, %%xmm2\n"
                     "pxor %%xmm3, %%xmm3\n pxor %%xmm4, %%xmm4\n pxor %%xmm5, %%xmm5\n pxor %%xmm6, %%xmm6\n"
                     "pxor %%xmm7, %%xmm7" ::
                         : "rax", "rdi", "rsi", "rdx", "rcx", "r8", "r9", "r10", "r11", "xmm0", "xmm1",
                           "xmm2", "xmm3", "xmm4", "xmm5", "xmm6", "xmm7", "memory");
}

} // namespace

TEST(Hooks, KeepArgumentsAndResultsOfEveryKind) {
    sim::onEvent(clobberRegisters);
    Class target = [HookedChild class];
    using Float = Hook<0, float, float>;
    using Double = Hook<1, double, double>;
    using Bool = Hook<2, BOOL, unsigned char>;
    using SmallStruct = Hook<3, Pair, double, double>;
    using LargeStruct = Hook<4, Quad, double, long>;
    using Many = Hook<5, id, int, long, double, char, float, long, double, short, double, double, double,
                      double, double, double, id>;
    Float::install(target, @selector(third:));
    Double::install(target, @selector(half:));
    Bool::install(target, @selector(isEven:));
    SmallStruct::install(target, @selector(pairOf:and:));
    LargeStruct::install(target, @selector(quadOf:integer:));
    Many::install(target, @selector(join:b:c:d:e:f:g:h:i:j:k:l:m:n:o:));

    HookedChild *child = [[HookedChild new] autorelease];
    EXPECT_EQ([child third:6], 2.0f);
    EXPECT_EQ([child half:7], 3.5);
    EXPECT_TRUE([child isEven:6]);
    EXPECT_FALSE([child isEven:7]);
    Pair pair = [child pairOf:1.5 and:-2];
    EXPECT_EQ(pair.x, 1.5);
    EXPECT_EQ(pair.y, -2);
    Quad quad = [child quadOf:5 integer:6];
    EXPECT_EQ(quad.x + quad.y * 10 + quad.w * 100 + quad.h * 1000, 4365);
    NSString *joined = [child join:-1
                                 b:1L << 40
                                 c:2.5
                                 d:-3
                                 e:0.5f
                                 f:6
                                 g:7.5
                                 h:-8
                                 i:9
                                 j:10
                                 k:11
                                 l:12
                                 m:13
                                 n:14
                                 o:@"end"];
    EXPECT_STREQ([joined UTF8String], "-1 1099511627776 2.5 -3 0.5 6 7.5 -8 9 10 11 12 13 14 end");
    EXPECT_EQ(Float::runs + Double::runs + Bool::runs + SmallStruct::runs + LargeStruct::runs + Many::runs,
              7);
}

TEST(Hooks, OnAnInheritedMethodLeaveTheParentAlone) {
    int (*original)(id, SEL);
    MSHookMessageEx([HookedChild class], @selector(number), reinterpret_cast<IMP>(fixedNumber),
                    reinterpret_cast<IMP *>(&original));
    id child = [[HookedChild new] autorelease], parent = [[HookedParent new] autorelease];
    EXPECT_EQ([child number], 42);
    EXPECT_EQ([parent number], 1);
    EXPECT_EQ(original(child, @selector(number)), 1);
}

TEST(Hooks, ReachClassMethodsThroughTheMetaclass) {
    using Class_ = Hook<6, int>;
    Class_::install(object_getClass([HookedParent class]), @selector(classNumber));
    EXPECT_EQ([HookedParent classNumber], 10);
    EXPECT_EQ([HookedChild classNumber], 10);
    EXPECT_EQ(Class_::runs, 2);
}

// Tables of classes in use are copies of their superclass's, one per group of neighbouring selectors.
TEST(Hooks, ReachSubclassesThatAreInUse) {
    NSMutableArray *list = [NSMutableArray array];
    NSArray *inUse =
        [NSArray arrayWithObjects:[NSNumber numberWithInt:1000], [NSString stringWithFormat:@"%d", 12345],
                                  list, [NSDate date], [[HookedChild new] autorelease], nil];
    for (id object in inUse) EXPECT_EQ([object isProxy], NO);
    using IsProxy = Hook<9, BOOL>;
    IsProxy::install([NSObject class], @selector(isProxy));
    for (id object in inUse) EXPECT_EQ([object isProxy], NO);
    EXPECT_EQ(IsProxy::runs, 5);
}

TEST(Hooks, StackOnOneAnother) {
    using Outer = Hook<7, int>;
    MSHookMessageEx([HookedParent class], @selector(number), reinterpret_cast<IMP>(fixedNumber), nullptr);
    Outer::install([HookedParent class], @selector(number));
    EXPECT_EQ([[[HookedParent new] autorelease] number], 42);
    EXPECT_EQ(Outer::runs, 1);
}

TEST(Hooks, RecordEachRunOfThePreviousImplementation) {
    using Counted = Hook<8, double, double>;
    Counted::install([HookedChild class], @selector(half:));
    id child = [[HookedChild new] autorelease];
    support::events();
    [child half:1];
    [child half:2];
    const char *line = "original class=HookedChild selector=half:";
    EXPECT_THAT(support::events(), testing::ElementsAre(line, line));
}

// Both sides are counted, apart for each state of the bytes that are watched at the entrance.
TEST(Hooks, CountBothSides) {
    static signed char flag = 0;
    using Passing = Hook<10, double, double>;
    Passing::install([HookedChild class], @selector(half:));
    MSHookMessageEx([HookedParent class], @selector(number), reinterpret_cast<IMP>(fixedNumber), nullptr);
    sim::watchAtHooks({&flag});
    sim::takeHookCounts();
    id child = [[HookedChild new] autorelease];
    [child half:1];
    flag = 1;
    [child half:2];
    [child half:3];
    [child number];
    std::vector<std::string> lines;
    for (const auto &count : sim::takeHookCounts())
        lines.push_back(count.selector + " " + std::to_string(count.state) + ": " +
                        std::to_string(count.entered) + " " + std::to_string(count.previous));
    EXPECT_THAT(lines, testing::ElementsAre("half: 0: 1 1", "half: 1: 2 2", "number 1: 1 0"));
    EXPECT_TRUE(sim::takeHookCounts().empty());
}

TEST(Hooks, OnNothingDoNoHarm) {
    IMP original = reinterpret_cast<IMP>(fixedNumber);
    MSHookMessageEx(nil, @selector(number), reinterpret_cast<IMP>(fixedNumber), &original);
    EXPECT_EQ(original, nullptr);
    original = reinterpret_cast<IMP>(fixedNumber);
    MSHookMessageEx([HookedChild class], @selector(classNumber), reinterpret_cast<IMP>(fixedNumber),
                    &original);
    EXPECT_EQ(original, nullptr);
    EXPECT_FALSE([HookedChild instancesRespondToSelector:@selector(classNumber)]);
    EXPECT_THAT(
        support::events(),
        testing::ElementsAre("warning text=hook on a method that does not exist: HookedChild classNumber"));
}
