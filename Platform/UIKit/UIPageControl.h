// The dots that stand for pages.
#pragma once

#include <UIKit/UIControl.h>

@interface UIPageControl : UIControl {
@public
    void *_pageControlState;
}
@property (nonatomic) NSInteger numberOfPages;
@end
