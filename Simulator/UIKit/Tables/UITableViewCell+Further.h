// What the platform has beyond <UIKit/UITableViewCell.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UITableViewCell.h>

@interface UITableViewCell (Further)
@property (nonatomic, readonly, retain) UIImageView *imageView;
@property (nonatomic, readonly, retain) UILabel *textLabel;
@property (nonatomic, readonly, retain) UILabel *detailTextLabel; // nil with the default style
@property (nonatomic) UITableViewCellSelectionStyle selectionStyle;
@property (nonatomic) UITableViewCellAccessoryType accessoryType;
// Stands for the accessory of the type.
@property (nonatomic, retain) UIView *accessoryView;
@property (nonatomic, retain) UIView *backgroundView;
@property (nonatomic, getter=isSelected) BOOL selected;
- (void)setSelected:(BOOL)selected animated:(BOOL)animated;
- (void)setHighlighted:(BOOL)highlighted animated:(BOOL)animated;
- (void)prepareForReuse;
@end
