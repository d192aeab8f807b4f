// The installed applications and their processes.
#pragma once

#include "SpringBoard/HomeScreen.h"

#include <SpringBoard/SBApplication.h>

namespace sim {

struct ApplicationRecord {
    std::string identifier, name;
    NSString *identifierText = nil, *nameText = nil; // the same; retained
    bool icon = true;                                // has a drawing of its own
    bool statusBar = true;                           // stays while it is in front
    bool snapshot = true;                            // was seen by the system when it was last left
    id badge = nil;                                  // retained; a number, a string, or nil
    int pid = 0;                                     // 0: does not run
    FBApplicationProcess *process = nil;             // retained; nil: does not run
};

ApplicationRecord &record(SBApplication *application);

SBApplication *installApplication(const ApplicationSpec &spec);
// In the order of installation.
const std::vector<SBApplication *> &installedApplications();
// nil when there is none, or for nil.
SBApplication *findApplication(NSString *identifier);
SBApplication *findApplication(const std::string &identifier);
NSString *identifierOf(SBApplication *application);

// Nothing happens when it runs.
void startProcess(SBApplication *application);
// The process is gone: an application in front makes way for the home screen. `how` is the event's:
// "switcher" or "signal". Nothing happens when it does not run.
void endProcess(SBApplication *application, const char *how);

} // namespace sim

@interface SBApplication (Activation)
- (NSString *)bundleIdentifier;
@end

// Before 8.0.
@interface SBApplication (DidActivate)
- (void)didActivate;
@end
