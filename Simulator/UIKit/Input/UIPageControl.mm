#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "UIKit/Views/ViewState.h"
#include "UIPageControl+Further.h"

#include <UIKit/UIPageControl.h>

#include <algorithm>

namespace {

constexpr CGFloat kDot = 7, kPitch = 16, kHeight = 37;

struct PageControlState {
    NSInteger pages = 0, current = 0;
    bool hidesForOne = false;
    UIColor *tint = nil, *currentTint = nil; // retained
};

PageControlState &state(UIPageControl *control) {
    return sim::lazyState<PageControlState>(control->_pageControlState);
}

render::Rgba paint(UIColor *color, double alpha) {
    return color ? sim::flatColor(sim::object([color CGColor])->paint) : render::Rgba{1, 1, 1, alpha};
}

} // namespace

@implementation UIPageControl

- (instancetype)initWithFrame:(CGRect)frame {
    if ((self = [super initWithFrame:frame])) [self setOpaque:NO];
    return self;
}

- (void)dealloc {
    [state(self).tint release];
    [state(self).currentTint release];
    delete &state(self);
    [super dealloc];
}

- (NSInteger)numberOfPages {
    return state(self).pages;
}
- (void)setNumberOfPages:(NSInteger)pages {
    state(self).pages = std::max<NSInteger>(pages, 0);
    [self setCurrentPage:state(self).current];
}

- (NSInteger)currentPage {
    return state(self).current;
}
- (void)setCurrentPage:(NSInteger)page {
    state(self).current = std::clamp<NSInteger>(page, 0, std::max<NSInteger>(state(self).pages - 1, 0));
}

- (BOOL)hidesForSinglePage {
    return state(self).hidesForOne;
}
- (void)setHidesForSinglePage:(BOOL)hides {
    state(self).hidesForOne = hides;
}

- (UIColor *)pageIndicatorTintColor {
    return state(self).tint;
}
- (void)setPageIndicatorTintColor:(UIColor *)color {
    sim::retainInto(state(self).tint, color);
}
- (UIColor *)currentPageIndicatorTintColor {
    return state(self).currentTint;
}
- (void)setCurrentPageIndicatorTintColor:(UIColor *)color {
    sim::retainInto(state(self).currentTint, color);
}

- (CGSize)sizeThatFits:(CGSize)size {
    return {kDot + kPitch * static_cast<CGFloat>(std::max<NSInteger>(state(self).pages - 1, 0)), kHeight};
}

- (void)appendDrawingsTo:(render::Node &)node {
    const auto &mine = state(self);
    if (mine.hidesForOne && mine.pages <= 1) return;
    double width = [self sizeThatFits:CGSizeZero].width, left = (node.bounds.width - width) / 2;
    for (NSInteger i = 0; i < mine.pages; ++i)
        node.drawings.push_back(
            render::Shape{.path = render::Path::oval({left + kPitch * static_cast<double>(i),
                                                      (node.bounds.height - kDot) / 2, kDot, kDot}),
                          .fill = i == mine.current ? paint(mine.currentTint, 1) : paint(mine.tint, 0.4),
                          .stroke = {}});
}

@end
