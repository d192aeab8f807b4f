#include "PendixSettings/Core/blueSwitcher.h"

#include "PendixSettings/Core/Pattern.h"

@implementation blueSwitcher

- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)identifier
                    specifier:(PSSpecifier *)specifier {
    self = [super initWithStyle:style reuseIdentifier:identifier specifier:specifier];
    if (self) [(UISwitch *)self.control setOnTintColor:pendix::pane::pattern()];
    return self;
}

@end
