#include "SettingsApplication.h"

#include "Preferences/Lists/PSListController+Further.h"
#include "RootList.h"
#include "Runtime/Process/Device.hpp"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/Controllers/ControllerState.h"
#include "UIKit/StatusBar/StatusBarState.h"
#include "UIKit/UIKit+Further.h"

namespace sim {

namespace {

struct Settings {
    UIWindow *window = nil; // for the life of the process, as what follows
    PSUIPrefsListController *list = nil;
    UINavigationController *navigation = nil; // where pages are opened
};

Settings &settings() {
    static Settings shared;
    return shared;
}

UIViewController *makeRoot() {
    auto &mine = settings();
    mine.list = [PSUIPrefsListController new];
    auto *listNavigation = [[UINavigationController alloc] initWithRootViewController:mine.list];
    [mine.list setRootController:listNavigation];
    mine.navigation = listNavigation;
    if (!device().pad) return listNavigation;
    UIViewController *empty = [[PSListController new] autorelease];
    mine.navigation = [[UINavigationController alloc] initWithRootViewController:empty];
    [mine.list setDetailNavigation:mine.navigation];
    return [[PSSplitViewController alloc] initWithList:listNavigation pane:mine.navigation];
}

} // namespace

void launchSettings(BundleLoader loader) {
    setBundleLoader(std::move(loader));
    setSharedApplication([UIApplication new]);
    auto &mine = settings();
    mine.window = [[UIWindow alloc] initWithFrame:[[UIScreen mainScreen] bounds]];
    setRole(mine.window, WindowRole::application);
    [mine.window setBackgroundColor:[UIColor whiteColor]];
    showStatusBar();
    setStatusBarStyle(StatusBarStyle::darkContent);
    [mine.window setRootViewController:makeRoot()];
    [mine.window makeKeyAndVisible];
}

bool openEntry(const std::string &name) {
    return [settings().list openEntryNamed:[NSString stringWithUTF8String:name.c_str()] animated:NO];
}

UIViewController *frontPage() {
    UIViewController *root = [settings().window rootViewController], *front = root;
    while (state(front).presented) front = state(front).presented;
    if (front == root) front = settings().navigation;
    if ([front isKindOfClass:[UINavigationController class]])
        return [static_cast<UINavigationController *>(front) topViewController];
    return front;
}

} // namespace sim
