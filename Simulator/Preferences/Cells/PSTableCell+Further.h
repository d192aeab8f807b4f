// What the platform has beyond <Preferences/PSTableCell.h>: used by the simulator and its tests only.
#pragma once

#include <Preferences/PSTableCell.h>

@interface PSTableCell (Further)
+ (PSCellType)cellTypeFromString:(NSString *)string;
+ (Class)cellClassForSpecifier:(PSSpecifier *)specifier;
- (void)refreshCellContentsWithSpecifier:(PSSpecifier *)specifier;
@property (nonatomic, assign) id cellTarget;
@property (nonatomic) SEL cellAction;
@property (nonatomic) BOOL cellEnabled;
- (UILabel *)titleLabel;
- (UILabel *)valueLabel;
- (BOOL)canReload;
@end

@interface PSControlTableCell (Further)
- (UIControl *)newControl;
- (id)controlValue;
- (void)controlChanged:(UIControl *)control;
@end
