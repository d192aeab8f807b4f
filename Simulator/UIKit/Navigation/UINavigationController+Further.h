// What the platform has beyond <UIKit/UINavigationController.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UINavigationController.h>

@interface UINavigationItem (Further)
@property (nonatomic) BOOL hidesBackButton;
@property (nonatomic, retain) UIBarButtonItem *backBarButtonItem;
@property (nonatomic, retain) UIBarButtonItem *leftBarButtonItem;
- (void)setLeftBarButtonItem:(UIBarButtonItem *)item animated:(BOOL)animated;
- (void)setRightBarButtonItem:(UIBarButtonItem *)item animated:(BOOL)animated;
@end

@interface UINavigationBar (Further)
@property (nonatomic, readonly, retain) UINavigationItem *topItem;
@property (nonatomic, readonly, retain) UINavigationItem *backItem;
@property (nonatomic, getter=isTranslucent) BOOL translucent;
@property (nonatomic, retain) UIColor *barTintColor;
@end

@interface UINavigationController (Further)
@property (nonatomic, readonly, retain) UIViewController *topViewController;
@property (nonatomic, readonly, retain) UIViewController *visibleViewController;
- (void)pushViewController:(UIViewController *)controller animated:(BOOL)animated;
- (NSArray *)popToRootViewControllerAnimated:(BOOL)animated;
@end
