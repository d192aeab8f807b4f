// Pages side by side, turned by a finger.
#pragma once

#include <UIKit/UIPageControl.h>
#include <UIKit/UIViewController.h>

typedef NSInteger UIPageViewControllerTransitionStyle;
enum { UIPageViewControllerTransitionStylePageCurl = 0, UIPageViewControllerTransitionStyleScroll = 1 };
typedef NSInteger UIPageViewControllerNavigationOrientation;
enum {
    UIPageViewControllerNavigationOrientationHorizontal = 0,
    UIPageViewControllerNavigationOrientationVertical = 1
};
typedef NSInteger UIPageViewControllerNavigationDirection;
enum {
    UIPageViewControllerNavigationDirectionForward = 0,
    UIPageViewControllerNavigationDirectionReverse = 1
};

@class UIPageViewController;

@protocol UIPageViewControllerDataSource <NSObject>
@required
// nil when there is no further page on that side.
- (UIViewController *)pageViewController:(UIPageViewController *)pageViewController
      viewControllerBeforeViewController:(UIViewController *)viewController;
- (UIViewController *)pageViewController:(UIPageViewController *)pageViewController
       viewControllerAfterViewController:(UIViewController *)viewController;
@optional
// A page control is shown with the scroll style when both answer.
- (NSInteger)presentationCountForPageViewController:(UIPageViewController *)pageViewController;
- (NSInteger)presentationIndexForPageViewController:(UIPageViewController *)pageViewController;
@end

@protocol UIPageViewControllerDelegate <NSObject>
@optional
- (void)pageViewController:(UIPageViewController *)pageViewController
    willTransitionToViewControllers:(NSArray *)pendingViewControllers;
// After a page turn by a finger only. `completed` NO: the page came back.
- (void)pageViewController:(UIPageViewController *)pageViewController
         didFinishAnimating:(BOOL)finished
    previousViewControllers:(NSArray *)previousViewControllers
        transitionCompleted:(BOOL)completed;
@end

// Pages side by side under the finger, one filling the view. Delegate and data source are not retained. Only
// the scroll style is offered, horizontally.
@interface UIPageViewController : UIViewController {
@public
    void *_pageViewControllerState;
}
- (instancetype)initWithTransitionStyle:(UIPageViewControllerTransitionStyle)style
                  navigationOrientation:(UIPageViewControllerNavigationOrientation)orientation
                                options:(NSDictionary *)options;
@property (nonatomic, assign) id<UIPageViewControllerDelegate> delegate;
@property (nonatomic, assign) id<UIPageViewControllerDataSource> dataSource;
@property (nonatomic, readonly) NSArray *viewControllers;
- (void)setViewControllers:(NSArray *)viewControllers
                 direction:(UIPageViewControllerNavigationDirection)direction
                  animated:(BOOL)animated
                completion:(void (^)(BOOL finished))completion;
@end
