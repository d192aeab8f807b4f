// System versions: each has just the methods and classes that the tables give it, whoever asks and in
// whichever way.
#import <Foundation/Foundation.h>

#include "Runtime/Objc/Availability.hpp"

#include <gtest/gtest.h>

#include <stdexcept>

using sim::ClassVersions;
using sim::Version;
using sim::VersionedMethod;

@interface Versioned : NSObject
@end
@implementation Versioned
- (int)always {
    return 1;
}
@end

@interface VersionedChild : Versioned
@end
@implementation VersionedChild
@end

@interface OnlyOnSeven : NSObject
@end
@implementation OnlyOnSeven
@end

@interface FromEight : NSObject
@end
@implementation FromEight
@end

@interface BuiltOnFromEight : FromEight
- (int)answer;
@end
@implementation BuiltOnFromEight
- (int)answer {
    return 8;
}
@end

namespace {

int one(id, SEL) { return 1; }
int two(id, SEL) { return 2; }
double sum(id, SEL, double a, int b) { return a + b; }
template <typename Function>
IMP imp(Function *function) {
    return reinterpret_cast<IMP>(function);
}

constexpr Version kFirst{7, 0}, kLast7{7, 9}, k80{8, 0}, k81{8, 1}, kLast{8, 9};

const VersionedMethod kMethods[] = {
    {"Versioned", "onSeven", "i@:", imp(one), kFirst, kLast7},
    {"Versioned", "changed", "i@:", imp(one), kFirst, k80},
    {"Versioned", "changed", "i@:", imp(two), k81, kLast},
    {"Versioned", "+sum:and:", "d@:di", imp(sum), k80, kLast},
    {"VersionedChild", "always", "i@:", imp(two), k81, kLast},
};
const ClassVersions kClasses[] = {{"OnlyOnSeven", kFirst, kLast7}, {"FromEight", k80, kLast}};
// As the platform's own units do it: before main().
const bool kRegistered =
    (sim::registerVersionedMethods(kMethods), sim::registerClassVersions(kClasses), true);

struct Expected {
    Version version;
    bool onSeven;
    int changed;
    bool sum;
    int childAlways;
    bool onlyOnSeven, fromEight;
};

void PrintTo(const Expected &expected, std::ostream *out) { *out << sim::toString(expected.version); }

class Versions : public testing::TestWithParam<Expected> {};

int call(id target, const char *selector) {
    SEL name = sel_registerName(selector);
    return reinterpret_cast<int (*)(id, SEL)>([target methodForSelector:name])(target, name);
}

bool isFound(const char *name) {
    Class found = objc_getClass(name);
    EXPECT_EQ(objc_lookUpClass(name), found);
    EXPECT_EQ(NSClassFromString([NSString stringWithUTF8String:name]), found);
    EXPECT_EQ(objc_getMetaClass(name) != nil, found != nil);
    return found != nil;
}

} // namespace

TEST_P(Versions, HaveWhatTheTablesGiveThem) {
    const auto &expected = GetParam();
    ASSERT_TRUE(isFound("OnlyOnSeven") && isFound("FromEight"));
    sim::applyAvailability(expected.version);
    id object = [[Versioned new] autorelease], child = [[VersionedChild new] autorelease];
    EXPECT_EQ([object respondsToSelector:sel_registerName("onSeven")], expected.onSeven);
    EXPECT_EQ([child respondsToSelector:sel_registerName("onSeven")], expected.onSeven);
    EXPECT_EQ(call(object, "changed"), expected.changed);
    EXPECT_EQ(call(object, "always"), 1);
    EXPECT_EQ(call(child, "always"), expected.childAlways);
    SEL sumSelector = sel_registerName("sum:and:");
    EXPECT_EQ([Versioned respondsToSelector:sumSelector], expected.sum);
    EXPECT_FALSE([object respondsToSelector:sumSelector]);
    if (expected.sum) {
        auto *function =
            reinterpret_cast<double (*)(id, SEL, double, int)>([Versioned methodForSelector:sumSelector]);
        EXPECT_EQ(function([Versioned class], sumSelector, 1.5, 2), 3.5);
        EXPECT_EQ([[Versioned methodSignatureForSelector:sumSelector] numberOfArguments], 4u);
    }
    EXPECT_EQ(isFound("OnlyOnSeven"), expected.onlyOnSeven);
    EXPECT_EQ(isFound("FromEight"), expected.fromEight);
    EXPECT_TRUE(isFound("NSObject"));
}

INSTANTIATE_TEST_SUITE_P(Each, Versions,
                         testing::Values(Expected{{7, 0}, true, 1, false, 1, true, false},
                                         Expected{{7, 1}, true, 1, false, 1, true, false},
                                         Expected{{8, 0}, false, 1, true, 1, false, true},
                                         Expected{{8, 1}, false, 2, true, 2, false, true},
                                         Expected{{8, 3}, false, 2, true, 2, false, true}),
                         [](const auto &info) {
                             Version version = info.param.version;
                             return std::to_string(version.major) + "_" + std::to_string(version.minor);
                         });

TEST(HiddenClasses, AreFoundByTheirNameNoMore) {
    sim::hideClass("FromEight");
    sim::hideClass("NoSuchClass");
    EXPECT_FALSE(isFound("FromEight"));
    EXPECT_EQ([[NSBundle mainBundle] classNamed:@"FromEight"], nil);
    EXPECT_TRUE(isFound("Versioned"));
    EXPECT_NE([FromEight class], nil) << "the system's own code goes on having it";
    EXPECT_EQ([[[BuiltOnFromEight new] autorelease] answer], 8) << "and so do classes built on it";
    EXPECT_EQ(objc_getClass("NoSuchClass"), nil);
    EXPECT_EQ(NSClassFromString(nil), nil);
}

TEST(Availability, RefusesRowsThatCannotBe) {
    const VersionedMethod present{"Versioned", "always", "i@:", imp(one), kFirst, kLast};
    const VersionedMethod nobody{"NoSuchClass", "x", "i@:", imp(one), k81, kLast};
    sim::registerVersionedMethods({&nobody, 1});
    EXPECT_NO_THROW(sim::applyAvailability({7, 0}));
    EXPECT_THROW(sim::applyAvailability({8, 1}), std::logic_error);
    sim::registerVersionedMethods({&present, 1});
    EXPECT_THROW(sim::applyAvailability({7, 0}), std::logic_error);
}
