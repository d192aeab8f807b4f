#include "PendixSettings/Core/PendixListController.h"

#include "PendixSettings/Core/PaneTranslator.h"
#include "Tweak/Core/Settings.h"

namespace pane = pendix::pane;

id pane::showable(id value) { return [value respondsToSelector:@selector(boolValue)] ? value : nil; }

@implementation PendixListController

- (NSArray *)specifiers {
    if (!_specifiers) _specifiers = [[self buildRows] retain];
    return _specifiers;
}

- (NSArray *)buildRows {
    return [NSArray array];
}

- (id)getValue:(PSSpecifier *)row {
    return pane::showable(pendix::setting(pane::getNotTranslated(row.name)));
}

- (void)setValue:(id)value forSpecifier:(PSSpecifier *)row {
    pendix::writeSetting(pane::getNotTranslated(row.name), value);
}

- (void)showAgain:(PSSpecifier *)group {
    const NSUInteger index = [_specifiers indexOfObject:group];
    if (index != NSNotFound) [self reloadSpecifierAtIndex:static_cast<NSInteger>(index) animated:YES];
}

@end
