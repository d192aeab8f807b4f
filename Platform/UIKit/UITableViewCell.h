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
@property (nonatomic, getter=isHighlighted) BOOL highlighted;
@end
