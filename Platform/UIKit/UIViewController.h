// What stands behind a page: its view, its children and its rotation.
#pragma once

#include <UIKit/UIView.h>

@class UINavigationController, UINavigationItem;

typedef NSInteger UIModalPresentationStyle;
enum {
    UIModalPresentationFullScreen = 0,
    // The next two are full screen on a phone.
    UIModalPresentationPageSheet = 1,
    UIModalPresentationFormSheet = 2
};

typedef NSUInteger UIInterfaceOrientationMask;
enum {
    UIInterfaceOrientationMaskPortrait = 1 << UIInterfaceOrientationPortrait,
    UIInterfaceOrientationMaskPortraitUpsideDown = 1 << UIInterfaceOrientationPortraitUpsideDown,
    UIInterfaceOrientationMaskLandscapeRight = 1 << UIInterfaceOrientationLandscapeRight,
    UIInterfaceOrientationMaskLandscapeLeft = 1 << UIInterfaceOrientationLandscapeLeft,
    UIInterfaceOrientationMaskAllButUpsideDown = 26,
    UIInterfaceOrientationMaskAll = 30
};

@interface UIViewController : UIResponder {
@public
    void *_controllerState;
}
@property (nonatomic, retain) UIView *view;
// Goes into the navigation item too.
@property (nonatomic, copy) NSString *title;
- (void)viewWillAppear:(BOOL)animated;
- (void)viewDidAppear:(BOOL)animated;
- (void)viewDidLoad;
- (void)viewDidLayoutSubviews;
@end

// Over the whole window, sliding up from below. A presentation is kept by the presenting controller; asking
// the presented one to dismiss itself reaches the presenting one. Completions run when the slide is over. One
// that presents already, or is on its way back, presents nothing else.
@interface UIViewController (UIModalPresentation)
// From the call that presents it until it has slid out; nil else.
@property (nonatomic, readonly) UIViewController *presentedViewController;
- (void)presentViewController:(UIViewController *)controller
                     animated:(BOOL)animated
                   completion:(void (^)(void))completion;
- (void)dismissViewControllerAnimated:(BOOL)animated completion:(void (^)(void))completion;
@end

// `duration` is in seconds.
@interface UIViewController (UIViewControllerRotation)
- (BOOL)shouldAutorotate; // YES
// A mask; all but upside down on a phone, all on an iPad.
- (NSUInteger)supportedInterfaceOrientations;
// Within the animation block of the rotation, with the new size already set.
- (void)willAnimateRotationToInterfaceOrientation:(UIInterfaceOrientation)orientation
                                         duration:(NSTimeInterval)duration;
@end

@interface UIViewController (UINavigationControllerItem)
// Made when it is first asked for.
@property (nonatomic, readonly, retain) UINavigationItem *navigationItem;
// The nearest one above; nil outside.
@property (nonatomic, readonly, retain) UINavigationController *navigationController;
@end
