// Pages that slide over one another, and the bar above them.
#pragma once

#include <UIKit/UIBarButtonItem.h>
#include <UIKit/UIViewController.h>

// What a controller shows in the bar while it is on top. The title view, when there is one, stands for the
// title.
@interface UINavigationItem : NSObject {
@public
    void *_navigationItemState;
}
- (instancetype)initWithTitle:(NSString *)title;
@property (nonatomic, copy) NSString *title;
@property (nonatomic, retain) UIView *titleView;
@property (nonatomic, copy) NSString *prompt;
@property (nonatomic, retain) UIBarButtonItem *rightBarButtonItem;
@end

// 44 points high, 32 in landscape on a phone; reaches up behind the status bar.
@interface UINavigationBar : UIView {
@public
    void *_navigationBarState;
}
@end

// Retains the controllers of its stack.
@interface UINavigationController : UIViewController {
@public
    void *_navigationControllerState;
}
- (instancetype)initWithRootViewController:(UIViewController *)root;
@property (nonatomic, copy) NSArray *viewControllers;
@property (nonatomic, readonly) UINavigationBar *navigationBar;
// The controller that went; nil when only the root is left.
- (UIViewController *)popViewControllerAnimated:(BOOL)animated;
- (void)setViewControllers:(NSArray *)controllers animated:(BOOL)animated;
@end
