#include "Applications.h"

#include "Runtime/Objc/Versions.hpp"

namespace {

id applicationWithIdentifier(id, SEL, NSString *identifier) { return sim::findApplication(identifier); }

id applicationsWithIdentifier(id, SEL, NSString *identifier) {
    SBApplication *application = sim::findApplication(identifier);
    return application ? [NSArray arrayWithObject:application] : [NSArray array];
}

const sim::VersionedMethod kMethods[] = {
    {"SBApplicationController", "applicationWithDisplayIdentifier:", "@@:@",
     sim::implementation(applicationWithIdentifier), sim::kOldest, sim::kLast7},
    {"SBApplicationController", "applicationsWithBundleIdentifier:", "@@:@",
     sim::implementation(applicationsWithIdentifier), sim::kOldest, sim::kLast7},
    {"SBApplicationController", "applicationWithBundleIdentifier:", "@@:@",
     sim::implementation(applicationWithIdentifier), sim::kFirst8, sim::kNewest},
};
const bool kRegistered = (sim::registerVersionedMethods(kMethods), true);

} // namespace

@implementation SBApplicationController

+ (instancetype)sharedInstance {
    static SBApplicationController *controller = [self new];
    return controller;
}

- (NSArray *)allApplications {
    const auto &list = sim::installedApplications();
    return [NSArray arrayWithObjects:list.data() count:list.size()];
}

@end
