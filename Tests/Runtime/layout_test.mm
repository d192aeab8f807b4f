// The check of instance layouts: a library that was compiled against an older superclass is found at load, by
// class and variable, and nothing sound is accused.
#import <Foundation/Foundation.h>

#include "Plugins/LayoutBase.h"
#include "Runtime/Objc/ClassLayout.hpp"

#include <dlfcn.h>
#include <gmock/gmock.h>

@implementation LayoutBase
@end

// Uses the padding that ends its superclass, as the compiler does.
@interface LayoutPaddingUser : LayoutBase {
    char inPadding;
    short alsoInPadding;
}
@end

@implementation LayoutPaddingUser
@end

@interface LayoutCollector : NSObject {
    std::vector<int> numbers;
    struct {
        char a;
        double b;
    } mixed;
    BOOL bits : 3;
}
@end

@implementation LayoutCollector
@end

@interface LayoutCollectorChild : LayoutCollector {
    BOOL next;
}
@end

@implementation LayoutCollectorChild
@end

namespace {

std::vector<std::string> namesOf(const std::vector<Class> &classes) {
    std::vector<std::string> names;
    for (Class each : classes) names.push_back(class_getName(each));
    return names;
}

} // namespace

TEST(ClassLayout, OfAStalePluginIsFoundBroken) {
    ASSERT_TRUE(dlopen(STALE_PLUGIN, RTLD_NOW)) << dlerror();
    auto classes = sim::classesOf(STALE_PLUGIN);
    EXPECT_THAT(namesOf(classes),
                testing::ElementsAre("StaleChild", "StaleEmptyChild", "StaleGrandchild", "StandaloneClass"));
    EXPECT_THAT(sim::brokenLayouts(classes),
                testing::ElementsAre(
                    "StaleChild keeps own at byte 16, within its superclass LayoutBase, which reaches "
                    "to byte 25",
                    "StaleChild keeps number at byte 24, within its superclass LayoutBase, which "
                    "reaches to byte 25",
                    "StaleEmptyChild is 16 bytes long, its superclass LayoutBase 32"));
}

TEST(ClassLayout, OfTheProgramsOwnClassesAndOfFoundationIsSound) {
    auto own = sim::classesOfProgram();
    EXPECT_THAT(namesOf(own),
                testing::IsSupersetOf({"LayoutBase", "LayoutPaddingUser", "SimTimer", "SimBlock"}));
    EXPECT_THAT(sim::brokenLayouts(own), testing::IsEmpty());
    Dl_info foundation;
    dladdr(reinterpret_cast<const void *>(&NSAllocateObject), &foundation);
    ASSERT_TRUE(dladdr(static_cast<const void *>([NSMutableArray class]), &foundation));
    auto classes = sim::classesOf(foundation.dli_fname);
    EXPECT_GT(classes.size(), 300u);
    EXPECT_THAT(sim::brokenLayouts(classes), testing::IsEmpty());
    EXPECT_TRUE(sim::classesOf("/no/such/library.so").empty());
}
