// A scroll view turns a page of its own size, and the reader says which.
#include "SpokenTexts.hpp"
#include "UIKit/Controls/Scrolling/ScrollMotion.h"
#include "UIKit/UIKit+Further.h"

#include <UIKit/UIAccessibility.h>

#include <algorithm>
#include <cmath>

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
    double size = vertical ? [self bounds].size.height : [self bounds].size.width;
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
