// The dots that stand for pages.
#pragma once

#include <UIKit/UIControl.h>

@interface UIPageControl : UIControl {
@public
    void *_pageControlState;
}
@property (nonatomic) NSInteger numberOfPages;
@property (nonatomic) NSInteger currentPage;
@property (nonatomic) BOOL hidesForSinglePage;
@property (nonatomic, retain) UIColor *pageIndicatorTintColor;
@property (nonatomic, retain) UIColor *currentPageIndicatorTintColor;
@end
