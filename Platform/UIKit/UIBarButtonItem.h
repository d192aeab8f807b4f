// The buttons of a navigation bar.
#pragma once

#include <UIKit/UIImage.h>
#include <UIKit/UIView.h>

typedef NSInteger UIBarButtonItemStyle;
// Bordered looks like plain from 7.0 on.
enum { UIBarButtonItemStylePlain = 0, UIBarButtonItemStyleBordered = 1, UIBarButtonItemStyleDone = 2 };

// The target is not retained. The action takes no argument or the item.
@interface UIBarButtonItem : NSObject {
@public
    void *_barButtonItemState;
}
// An image is painted in the bar's tint colour unless its rendering mode says otherwise.
- (instancetype)initWithImage:(UIImage *)image
                        style:(UIBarButtonItemStyle)style
                       target:(id)target
                       action:(SEL)action;
- (instancetype)initWithTitle:(NSString *)title
                        style:(UIBarButtonItemStyle)style
                       target:(id)target
                       action:(SEL)action;
@property (nonatomic, copy) NSString *title;
@property (nonatomic, retain) UIImage *image;
@property (nonatomic) UIBarButtonItemStyle style;
@property (nonatomic, assign) id target;
@property (nonatomic) SEL action;
@property (nonatomic, getter=isEnabled) BOOL enabled;
@end
