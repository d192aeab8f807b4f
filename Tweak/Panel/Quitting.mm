// Quitting applications the way the switcher of each system version does.
#include "Tweak/Panel/CloseMarks.h"

#include "Tweak/Core/Applications.h"
#include "Tweak/Core/Screen.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"

#include <Darwin/process.h>

namespace pendix {

namespace {

SBAppSwitcherModel *switcherModel() { return [objc_getClass("SBAppSwitcherModel") sharedInstance]; }

// A copy, for quitting changes the list.
NSArray *recentLayouts() {
    void *layouts = nullptr;
    if (!object_getInstanceVariable(switcherModel(), "_recentDisplayLayouts", &layouts) || !layouts)
        return nil;
    return [NSArray arrayWithArray:static_cast<NSArray *>(layouts)];
}

NSString *identifierOfLayout(SBDisplayLayout *layout) {
    SBDisplayItem *item = [[layout displayItems] firstObject];
    return [item respondsToSelector:@selector(displayIdentifier)] ? [item displayIdentifier] : nil;
}

void quitLayout(SBDisplayLayout *layout, NSString *identifier) {
    SBApplication *application = applicationOf(identifier);
    [application deactivate];
    [[application _process] _queue_processDidExit];
    [switcherModel() remove:layout];
}

void quitByProcess(NSString *identifier) {
    SBApplication *application = applicationOf(identifier);
    [application deactivate];
    if ([application pid] > 0) kill([application pid], SIGTERM);
}

} // namespace

void quitThroughSwitcher() {
    if (!isEight() || !isOn(keys::runningMode)) return;
    okay = YES;
    for (SBDisplayLayout *layout in recentLayouts())
        if (NSString *identifier = identifierOfLayout(layout)) quitLayout(layout, identifier);
}

void quit(NSString *identifier) {
    if (!isEight()) {
        quitByProcess(identifier);
        return;
    }
    for (SBDisplayLayout *layout in recentLayouts()) {
        if (![identifierOfLayout(layout) isEqualToString:identifier]) continue;
        quitLayout(layout, identifier);
        return;
    }
}

} // namespace pendix
