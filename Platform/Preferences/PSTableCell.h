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
- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)identifier
                    specifier:(PSSpecifier *)specifier;
@property (nonatomic, retain) PSSpecifier *specifier;
@property (nonatomic) PSCellType type;
@property (nonatomic, assign) id target;
@property (nonatomic) SEL action;
@property (nonatomic, retain) id value;
- (NSString *)title;
@end

// A row with a control in it, which the control's value-changed event ties to the specifier's setter.
@interface PSControlTableCell : PSTableCell {
@public
    void *_controlTableCellState;
}
@property (nonatomic, retain) UIControl *control;
@end

@interface PSSwitchTableCell : PSControlTableCell
@end

@interface PSSegmentTableCell : PSControlTableCell
@end
