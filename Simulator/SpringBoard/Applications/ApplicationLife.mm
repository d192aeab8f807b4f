#include "ApplicationLife.h"

#include "ApplicationWindow.h"
#include "Applications.h"
#include "Runtime/Process/Events.hpp"
#include "SpringBoard/Home/FolderOverlay.h"
#include "SpringBoard/Switcher/SwitcherModel.h"
#include "SpringBoard/Switcher/SwitcherScreen.h"
#include "SpringBoard/System/Interface.h"

#include <utility>

namespace sim {

namespace {
SBApplication *front = nil;
}

SBApplication *frontApplication() { return front; }

void launch(SBApplication *application, bool suspended) {
    if (!application || application == front) return;
    startProcess(application);
    moveToSwitcherFront(application);
    recordEvent("launch", Object{{"id", record(application).identifier}});
    if (suspended) return;
    setReachability(false);
    SBApplication *before = std::exchange(front, application);
    [application willActivate];
    if (before) {
        record(before).snapshot = true;
        [before willAnimateDeactivation:YES];
    }
    closeFolder(false);
    closeSwitcher(true);
    turnInterfaceAsWanted();
    showApplicationWindow(application);
    if ([application respondsToSelector:@selector(didActivate)]) [application didActivate];
}

void returnToHomeScreen() {
    SBApplication *before = std::exchange(front, nil);
    if (!before) return;
    record(before).snapshot = true;
    [before willAnimateDeactivation:YES];
    hideApplicationWindow(before);
    turnInterfaceAsWanted();
}

} // namespace sim
