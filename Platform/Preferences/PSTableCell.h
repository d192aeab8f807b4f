// The rows of a page of Settings as views, and what stands above and below their groups.
#pragma once

#include <Preferences/PSSpecifier.h>
#include <UIKit/UIKit.h>

// The view of a group's `headerCellClass` or `footerCellClass`. Heights in points.
@protocol PSHeaderFooterView <NSObject>
- (instancetype)initWithSpecifier:(PSSpecifier *)specifier;
@optional
- (CGFloat)preferredHeightForWidth:(CGFloat)width;
- (CGFloat)preferredHeightForWidth:(CGFloat)width inTableView:(id)tableView;
@end

// The row of a specifier, whose target and action are not retained.
@interface PSTableCell : UITableViewCell {
@public
    void *_tableCellState;
}
+ (PSCellType)cellTypeFromString:(NSString *)string;
+ (Class)cellClassForSpecifier:(PSSpecifier *)specifier;
- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)identifier
                    specifier:(PSSpecifier *)specifier;
- (void)refreshCellContentsWithSpecifier:(PSSpecifier *)specifier;
@property (nonatomic, retain) PSSpecifier *specifier;
@property (nonatomic) PSCellType type;
@property (nonatomic, assign) id target;
@property (nonatomic) SEL action;
@property (nonatomic, assign) id cellTarget;
@property (nonatomic) SEL cellAction;
@property (nonatomic) BOOL cellEnabled;
@property (nonatomic, retain) id value;
- (UILabel *)titleLabel;
- (UILabel *)valueLabel;
- (NSString *)title;
- (BOOL)canReload;
@end

// A row with a control in it, which the control's value-changed event ties to the specifier's setter.
@interface PSControlTableCell : PSTableCell {
@public
    void *_controlTableCellState;
}
@property (nonatomic, retain) UIControl *control;
- (UIControl *)newControl;
- (id)controlValue;
- (void)controlChanged:(UIControl *)control;
@end

@interface PSSwitchTableCell : PSControlTableCell
@end

@interface PSSegmentTableCell : PSControlTableCell
@end
