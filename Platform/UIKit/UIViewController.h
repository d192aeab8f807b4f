#pragma once

#include <UIKit/UIView.h>

@interface UIViewController : UIResponder {
@public
    void *_controllerState;
}
@property (nonatomic, retain) UIView *view;
@property (nonatomic, copy) NSString *title;
- (void)loadView;
- (void)viewDidLoad;
- (void)viewWillAppear:(BOOL)animated;
- (void)viewDidAppear:(BOOL)animated;
- (void)viewWillDisappear:(BOOL)animated;
- (void)viewDidDisappear:(BOOL)animated;
@end
