// A scroll view turns a page of what is seen of it, and the reader says which.
#include "AccessibilityFrames.h"
#include "SpokenTexts.hpp"
#include "UIKit/Controls/Scrolling/ScrollMotion.h"
#include "UIKit/UIKit+Further.h"

#include <UIKit/UIAccessibility.h>

#include <algorithm>
#include <cmath>

namespace sim {

CGRect unobscuredBounds(UIScrollView *scrollView) {
    CGRect bounds = [scrollView bounds];
    UIEdgeInsets inset = [scrollView contentInset];
    return CGRectMake(bounds.origin.x + inset.left, bounds.origin.y + inset.top,
                      bounds.size.width - inset.left - inset.right,
                      bounds.size.height - inset.top - inset.bottom);
}

} // namespace sim

@implementation UIScrollView (Speech)

- (BOOL)accessibilityScroll:(UIAccessibilityScrollDirection)direction {
    bool vertical =
        direction == UIAccessibilityScrollDirectionUp || direction == UIAccessibilityScrollDirectionDown;
    bool on = direction == UIAccessibilityScrollDirectionLeft ||
              direction == UIAccessibilityScrollDirectionUp ||
              direction == UIAccessibilityScrollDirectionNext;
    CGPoint offset = [self contentOffset];
    CGFloat &place = vertical ? offset.y : offset.x;
    auto range = sim::scrollRange(self, vertical);
    CGSize room = sim::unobscuredBounds(self).size;
    double size = vertical ? room.height : room.width;
    double target = std::clamp(place + (on ? size : -size), range.least, range.most);
    if (![self isScrollEnabled] || size <= 0 || target == place) return NO;
    place = target;
    [self setContentOffset:offset animated:YES];
    auto page = [&](double at) { return static_cast<int>(std::ceil((at - range.least) / size - 1e-6)) + 1; };
    std::string text = sim::pageText(page(target), page(range.most));
    UIAccessibilityPostNotification(UIAccessibilityPageScrolledNotification,
                                    [NSString stringWithUTF8String:text.c_str()]);
    return YES;
}

@end
