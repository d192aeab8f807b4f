// What the platform has beyond <UIKit/UIViewController.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UIViewController.h>

@interface UIViewController (Further)
- (void)loadView;
- (void)viewWillDisappear:(BOOL)animated;
- (void)viewDidDisappear:(BOOL)animated;
- (void)viewWillLayoutSubviews;
- (BOOL)isViewLoaded;
@property (nonatomic, readonly) UIViewController *parentViewController;
@property (nonatomic, readonly) NSArray *childViewControllers;
// Retained by the parent. The caller adds the child's view itself.
- (void)addChildViewController:(UIViewController *)child;
- (void)removeFromParentViewController;
- (void)willMoveToParentViewController:(UIViewController *)parent;
- (void)didMoveToParentViewController:(UIViewController *)parent;
@property (nonatomic, readonly) UIViewController *presentingViewController;
@property (nonatomic) UIModalPresentationStyle modalPresentationStyle;
@property (nonatomic, readonly) UIInterfaceOrientation interfaceOrientation;
- (void)willRotateToInterfaceOrientation:(UIInterfaceOrientation)orientation
                                duration:(NSTimeInterval)duration;
- (void)didRotateFromInterfaceOrientation:(UIInterfaceOrientation)orientation;
@end
