#include "HomeScreen.h"

#include "SpringBoard/Applications/ApplicationLife.h"
#include "SpringBoard/Applications/Applications.h"
#include "SpringBoard/Icons/Icons.h"
#include "SpringBoard/Lock/LockState.h"
#include "SpringBoard/Services/Activator.h"
#include "SpringBoard/Services/ColorBadges.h"
#include "SpringBoard/StatusLibrary/LibraryItems.h"
#include "SpringBoard/Switcher/SwitcherModel.h"
#include "SpringBoard/System/Interface.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/StatusBar/StatusBarState.h"

#include <SpringBoard/SpringBoard.h>

#include <algorithm>

@interface SpringBoard (HomeButton)
- (void)handleMenuDoubleTap;
@end

namespace sim {

namespace {

// Shows web pages inside other applications: installed on every device, and never on the home screen.
constexpr const char *kWebViewService = "com.apple.WebViewService";

std::vector<ApplicationSpec> &specs() {
    static std::vector<ApplicationSpec> list;
    return list;
}

bool listed(const std::vector<ApplicationSpec> &applications, const std::string &identifier) {
    return std::any_of(applications.begin(), applications.end(),
                       [&](const ApplicationSpec &spec) { return spec.identifier == identifier; });
}

} // namespace

void prepareHomeScreen(const SharedOptions &options) {
    specs() = options.applications;
    lockState().passcode = options.passcode || options.passcodeLocked;
    lockState().screenLocked = lockState().passcodeLocked = options.passcodeLocked;
    setDeviceOrientation(static_cast<UIDeviceOrientation>(options.orientation));
    letInterfaceTurn(options.interfaceTurns);
    installColorBadges(options);
    for (const auto &spec : specs()) installApplication(spec);
    if (!listed(specs(), kWebViewService))
        installApplication(
            {.identifier = kWebViewService, .name = "WebViewService", .folder = {}, .icon = false});
    makeIcons(specs());
    for (auto spec = specs().rbegin(); spec != specs().rend(); ++spec) {
        SBApplication *application = findApplication(spec->identifier);
        if (!spec->running) continue;
        startProcess(application);
        moveToSwitcherFront(application);
    }
    setSharedApplication([SpringBoard new]);
}

void launchHomeScreen() {
    UIApplication *application = [UIApplication sharedApplication];
    [static_cast<SpringBoard *>(application) applicationDidFinishLaunching:application];
    for (const auto &spec : specs()) {
        if (spec.badge <= 0) continue;
        SBApplication *owner = findApplication(spec.identifier);
        record(owner).badge = [[NSNumber numberWithInt:static_cast<int>(spec.badge)] retain];
        badgeDidChange(owner);
    }
}

bool setBadge(const std::string &identifier, int value) {
    SBApplication *application = findApplication(identifier);
    if (!application) return false;
    [application setBadge:value ? [NSNumber numberWithInt:value] : nil];
    return true;
}

bool openApplication(const std::string &identifier) {
    SBApplication *application = findApplication(identifier);
    if (application) launch(application, false);
    return application != nil;
}

// A press on a dark device wakes it and does no more.
void clickHomeButton() {
    if (!displayIsOn()) return turnDisplay(true);
    if (sendActivatorDeactivateEvent()) return;
    setReachability(false);
    [[SBUIController sharedInstance] clickedMenuButton];
}

void clickHomeButtonTwice() {
    if (!displayIsOn()) return turnDisplay(true);
    [static_cast<SpringBoard *>([UIApplication sharedApplication]) handleMenuDoubleTap];
}

void setDisplay(bool on) { turnDisplay(on); }
void pressLockButton() { turnDisplay(!displayIsOn()); }
void unlockDevice() { unlockByPerson(); }

std::optional<std::string> foregroundApplication() {
    SBApplication *front = lockState().screenLocked ? nil : frontApplication();
    return front ? std::optional(record(front).identifier) : std::nullopt;
}

std::vector<std::string> switcherApplications() { return switcherIdentifiers(); }

SBIconView *homeScreenIconView(const std::string &identifier) {
    return listed(specs(), identifier)
               ? [[SBIconViewMap homescreenMap]
                     mappedIconViewForIcon:findIcon(identifierOf(findApplication(identifier)))]
               : nil;
}

void restyleStatusBar() { layOutStatusBarAnew(); }

Value statusBarItem(const std::string &identifier) {
    const LibraryItem *item = findLibraryItem(identifier);
    if (!item) return Object{{"present", false}, {"visible", false}};
    Object result{{"present", true}, {"visible", item->shown()}};
    if (item->imageName) result["image"] = [item->imageName UTF8String];
    return result;
}

UIView *statusBarItemView(const std::string &identifier) {
    const LibraryItem *item = findLibraryItem(identifier);
    return item ? statusBarItemView(item->barItem) : nil;
}

void deliverSignal(int pid, int number) {
    constexpr int kKill = 9, kTerminate = 15;
    if (pid <= 0 || (number != kKill && number != kTerminate)) return;
    for (SBApplication *application : installedApplications())
        if (record(application).pid == pid) return endProcess(application, "signal");
}

} // namespace sim
