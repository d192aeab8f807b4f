#include "PendixSettings/Applications/perAppController.h"

#include "PendixSettings/Applications/appController.h"
#include "PendixSettings/Core/Rows.h"
#include "Tweak/Core/Names.h"

#include <AppList/AppList.h>

@implementation perAppController

- (NSArray *)buildRows {
    pendix::pane::Rows rows(self);
    ALApplicationList *list = [objc_getClass("ALApplicationList") sharedApplicationList];
    auto iconOf = [list](NSString *identifier) {
        return [list iconOfSize:ALApplicationIconSizeSmall forDisplayIdentifier:identifier];
    };
    // It has no icon of its own, so shows the one that such applications get.
    NSData *placeholder = UIImagePNGRepresentation(iconOf(pendix::names::placeholderOwner));
    for (NSString *identifier in list.applications) {
        UIImage *icon = iconOf(identifier);
        if ([UIImagePNGRepresentation(icon) isEqual:placeholder]) continue;
        rows.namedLink(identifier, [appController class], icon);
    }
    return rows.list();
}

@end
