// The page on which events are given to a listener: their groups, each with the events that there are.
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "Runtime/Process/Events.hpp"
#include "UIKit/UIKit+Further.h"

#include <Activator/LAListenerSettingsViewController.h>
#include <Preferences/Preferences.h>

#include <iterator>
#include <utility>

namespace {

struct EventGroup {
    const char *title;
    const char *events[4];
};

constexpr EventGroup kGroups[] = {{"Home Button", {"Single Press", "Double Press", "Short Hold", nullptr}},
                                  {"Status Bar", {"Double Tap", "Hold", "Swipe Left", "Swipe Right"}},
                                  {"Sleep Button", {"Double Press", "Short Hold", nullptr, nullptr}}};

struct ListenerSettingsState {
    NSString *name = nil; // retained, as the table
    UITableView *table = nil;
    bool told = false;
};

ListenerSettingsState &state(LAListenerSettingsViewController *page) {
    return sim::lazyState<ListenerSettingsState>(page->_listenerSettingsState);
}

} // namespace

@interface LAListenerSettingsViewController (Table) <UITableViewDataSource>
@end

@implementation LAListenerSettingsViewController

- (void)dealloc {
    [state(self).table setDataSource:nil];
    [state(self).table release];
    [state(self).name release];
    delete &state(self);
    [super dealloc];
}

- (NSString *)listenerName {
    return state(self).name;
}
- (void)setListenerName:(NSString *)name {
    sim::copyInto(state(self).name, name);
}

- (void)loadView {
    [super loadView];
    auto &mine = state(self);
    mine.table = [[UITableView alloc] initWithFrame:[[self view] bounds] style:UITableViewStyleGrouped];
    [mine.table setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [mine.table setDataSource:self];
    [[self view] addSubview:mine.table];
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    if (std::exchange(state(self).told, true)) return;
    NSString *name = state(self).name;
    sim::recordEvent("activator_settings", sim::Object{{"listener", name ? [name UTF8String] : ""}});
}

@end

@implementation LAListenerSettingsViewController (Table)

- (NSInteger)numberOfSectionsInTableView:(UITableView *)tableView {
    return static_cast<NSInteger>(std::size(kGroups));
}

- (NSInteger)tableView:(UITableView *)tableView numberOfRowsInSection:(NSInteger)section {
    NSInteger count = 0;
    for (const char *event : kGroups[section].events) count += event != nullptr;
    return count;
}

- (NSString *)tableView:(UITableView *)tableView titleForHeaderInSection:(NSInteger)section {
    return [NSString stringWithUTF8String:kGroups[section].title];
}

- (UITableViewCell *)tableView:(UITableView *)tableView cellForRowAtIndexPath:(NSIndexPath *)path {
    UITableViewCell *cell = [tableView dequeueReusableCellWithIdentifier:@"event"];
    if (!cell)
        cell = [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleDefault
                                       reuseIdentifier:@"event"] autorelease];
    [[cell textLabel] setText:[NSString stringWithUTF8String:kGroups[[path section]].events[[path row]]]];
    return cell;
}

@end
