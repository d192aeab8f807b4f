#include "Applications.h"

#include "ApplicationLife.h"
#include "Runtime/Process/Events.hpp"

namespace sim {

namespace {

std::vector<SBApplication *> &installed() {
    static std::vector<SBApplication *> applications;
    return applications;
}

NSMutableDictionary *byIdentifier() {
    static NSMutableDictionary *applications = [NSMutableDictionary new];
    return applications;
}

NSString *text(const std::string &utf8) { return [NSString stringWithUTF8String:utf8.c_str()]; }

} // namespace

ApplicationRecord &record(SBApplication *application) {
    return *static_cast<ApplicationRecord *>(application->_sbApplicationState);
}

SBApplication *installApplication(const ApplicationSpec &spec) {
    SBApplication *application = [SBApplication new];
    application->_sbApplicationState = new ApplicationRecord{.identifier = spec.identifier,
                                                             .name = spec.name,
                                                             .identifierText = [text(spec.identifier) retain],
                                                             .nameText = [text(spec.name) retain],
                                                             .icon = spec.icon,
                                                             .statusBar = spec.statusBar,
                                                             .snapshot = spec.snapshot};
    installed().push_back(application);
    NSString *identifier = record(application).identifierText;
    if (![byIdentifier() objectForKey:identifier]) [byIdentifier() setObject:application forKey:identifier];
    return application;
}

const std::vector<SBApplication *> &installedApplications() { return installed(); }

SBApplication *findApplication(const std::string &identifier) { return findApplication(text(identifier)); }

SBApplication *findApplication(NSString *identifier) {
    return identifier ? [byIdentifier() objectForKey:identifier] : nil;
}

NSString *identifierOf(SBApplication *application) {
    return application ? record(application).identifierText : nil;
}

void startProcess(SBApplication *application) {
    constexpr int kFirstPid = 301, kPidStep = 7;
    static int last = kFirstPid - kPidStep;
    auto &own = record(application);
    if (own.pid > 0) return;
    own.pid = last += kPidStep;
    own.process = [FBApplicationProcess new];
    own.process->_processState = application;
}

void endProcess(SBApplication *application, const char *how) {
    auto &own = record(application);
    if (own.pid <= 0) return;
    own.pid = 0;
    [own.process autorelease];
    own.process = nil;
    recordEvent("quit", Object{{"id", own.identifier}, {"how", how}});
    if (frontApplication() == application) returnToHomeScreen();
}

} // namespace sim

@implementation FBApplicationProcess

// On a device this runs when the process has ended; called on one that lives, it takes the process for dead
// all the same, and the system ends what is left of it.
- (void)_queue_processDidExit {
    auto *application = static_cast<SBApplication *>(_processState);
    if (sim::record(application).process == self) sim::endProcess(application, "switcher");
}

@end
