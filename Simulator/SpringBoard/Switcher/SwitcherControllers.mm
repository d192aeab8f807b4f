// The controllers behind the switcher's own screen, as far as they send an application away.
#include "SwitcherModel.h"

#include "Runtime/Objc/Versions.hpp"
#include "SpringBoard/Applications/Applications.h"

#include <UIKit/UIKit.h>

#include <algorithm>
#include <objc/runtime.h>

@interface SBAppSliderController : UIViewController
@end

@interface SBAppSwitcherController : UIViewController
@end

@interface UIViewController (Quitting)
- (void)_quitAppAtIndex:(unsigned long long)index;
- (void)_quitAppWithDisplayItem:(SBDisplayItem *)item;
@end

namespace {

void quit(NSString *identifier) {
    [[SBAppSwitcherModel sharedInstance] remove:sim::switcherEntry(identifier)];
    if (SBApplication *application = sim::findApplication(identifier))
        sim::endProcess(application, "switcher");
}

void quitAppAtIndex(id, SEL, unsigned long long index) {
    auto identifiers = sim::switcherIdentifiers();
    if (index < identifiers.size()) quit([NSString stringWithUTF8String:identifiers[index].c_str()]);
}

void quitAppWithDisplayItem(id, SEL, SBDisplayItem *item) { quit([item displayIdentifier]); }

const sim::VersionedMethod kMethods[] = {
    {"SBAppSliderController", "_quitAppAtIndex:", "v@:Q", sim::implementation(quitAppAtIndex), sim::kOldest,
     sim::kLast7},
    {"SBAppSwitcherController", "_quitAppWithDisplayItem:", "v@:@",
     sim::implementation(quitAppWithDisplayItem), sim::kFirst8, sim::kNewest},
};
const sim::ClassVersions kClasses[] = {
    {"SBAppSliderController", sim::kOldest, sim::kLast7},
    {"SBAppSwitcherController", sim::kFirst8, sim::kNewest},
};
const bool kRegistered =
    (sim::registerVersionedMethods(kMethods), sim::registerClassVersions(kClasses), true);

} // namespace

@implementation SBAppSliderController
@end

@implementation SBAppSwitcherController
@end

namespace sim {

void quitFromSwitcher(SBApplication *application) {
    auto list = switcherIdentifiers();
    auto place = std::find(list.begin(), list.end(), record(application).identifier);
    if (place == list.end()) return;
    NSString *identifier = identifierOf(application);
    if (Class newer = objc_getClass("SBAppSwitcherController")) {
        static UIViewController *controller = [newer new];
        [controller _quitAppWithDisplayItem:[objc_getClass("SBDisplayItem") displayItemWithType:@"App"
                                                                              displayIdentifier:identifier]];
    } else {
        static UIViewController *controller = [objc_getClass("SBAppSliderController") new];
        [controller _quitAppAtIndex:static_cast<unsigned long long>(place - list.begin())];
    }
}

} // namespace sim
