// The rows of a list as views.
#pragma once

#include <UIKit/UIImageView.h>
#include <UIKit/UILabel.h>

typedef NSInteger UITableViewCellStyle;
enum {
    UITableViewCellStyleDefault = 0,
    UITableViewCellStyleValue1 = 1,
    UITableViewCellStyleValue2 = 2,
    UITableViewCellStyleSubtitle = 3
};
typedef NSInteger UITableViewCellSelectionStyle;
enum {
    UITableViewCellSelectionStyleNone = 0,
    UITableViewCellSelectionStyleBlue = 1,
    UITableViewCellSelectionStyleGray = 2,
    UITableViewCellSelectionStyleDefault = 3
};
typedef NSInteger UITableViewCellAccessoryType;
enum {
    UITableViewCellAccessoryNone = 0,
    UITableViewCellAccessoryDisclosureIndicator = 1,
    UITableViewCellAccessoryDetailDisclosureButton = 2,
    UITableViewCellAccessoryCheckmark = 3
};

@interface UITableViewCell : UIView {
@public
    void *_cellState;
}
- (instancetype)initWithStyle:(UITableViewCellStyle)style reuseIdentifier:(NSString *)identifier;
@property (nonatomic, readonly, copy) NSString *reuseIdentifier;
@property (nonatomic, readonly, retain) UIView *contentView;
@property (nonatomic, readonly, retain) UIImageView *imageView;
@property (nonatomic, readonly, retain) UILabel *textLabel;
@property (nonatomic, readonly, retain) UILabel *detailTextLabel; // nil with the default style
@property (nonatomic) UITableViewCellSelectionStyle selectionStyle;
@property (nonatomic) UITableViewCellAccessoryType accessoryType;
// Stands for the accessory of the type.
@property (nonatomic, retain) UIView *accessoryView;
@property (nonatomic, retain) UIView *backgroundView;
@property (nonatomic, getter=isSelected) BOOL selected;
@property (nonatomic, getter=isHighlighted) BOOL highlighted;
- (void)setSelected:(BOOL)selected animated:(BOOL)animated;
- (void)setHighlighted:(BOOL)highlighted animated:(BOOL)animated;
- (void)prepareForReuse;
@end
