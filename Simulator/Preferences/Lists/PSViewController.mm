#include "PSListController+Further.h"
#include "Preferences/Specifiers/SpecifierState.h"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "UIKit/Navigation/UINavigationController+Further.h"

#include <Preferences/PSListController.h>

namespace {

struct PreferencesControllerState {
    PSSpecifier *specifier = nil; // retained
    id parent = nil, root = nil;  // not retained
};

PreferencesControllerState &state(PSViewController *controller) {
    return sim::lazyState<PreferencesControllerState>(controller->_preferencesControllerState);
}

} // namespace

@implementation PSViewController

- (void)dealloc {
    auto &mine = state(self);
    [mine.specifier release];
    delete &mine;
    [super dealloc];
}

- (PSSpecifier *)specifier {
    return state(self).specifier;
}
- (void)setSpecifier:(PSSpecifier *)specifier {
    sim::retainInto(state(self).specifier, specifier);
    if (![self title]) [self setTitle:[specifier name]];
}

- (id)parentController {
    return state(self).parent;
}
- (void)setParentController:(id)parent {
    state(self).parent = parent;
}
- (id)rootController {
    return state(self).root;
}
- (void)setRootController:(id)root {
    state(self).root = root;
}

- (id)readPreferenceValue:(PSSpecifier *)specifier {
    return [specifier performGetter];
}
- (void)setPreferenceValue:(id)value specifier:(PSSpecifier *)specifier {
    [specifier performSetterWithValue:value];
}

- (void)pushController:(UIViewController *)controller {
    [self pushController:controller animated:YES];
}
- (void)pushController:(UIViewController *)controller animated:(BOOL)animated {
    if ([controller isKindOfClass:[PSViewController class]]) {
        auto *page = static_cast<PSViewController *>(controller);
        [page setParentController:self];
        [page setRootController:[self rootController]];
    }
    [[self navigationController] pushViewController:controller animated:animated];
}

@end
