// A scroll view of 300 by 200 points at the screen's corner, and a delegate that notes what it hears.
#pragma once

#include "Harness.h"

#include "UIKit/UIKit+Further.h"

#include <cmath>

// Notes "will drag", "end drag stops" or "end drag goes on", "will decelerate", "did decelerate", "did
// animate"; counts the scrolls.
@interface ScrollWitness : NSObject <UIScrollViewDelegate> {
@public
    int scrolls;
    CGPoint least, most; // offsets seen
}
@end

namespace harness {

struct ScrollStage {
    UIWindow *window = makeWindow();
    UIScrollView *view = [[UIScrollView alloc] initWithFrame:CGRectMake(0, 0, 300, 200)];
    ScrollWitness *witness = [ScrollWitness new];

    explicit ScrollStage(CGSize content) {
        [window addSubview:view];
        [view setContentSize:content];
        [view setDelegate:witness];
    }
    ~ScrollStage() {
        [view setDelegate:nil];
        [window setHidden:YES];
        [view removeFromSuperview];
        [view release];
        [witness release];
    }
    double x() const { return [view contentOffset].x; }
    double y() const { return [view contentOffset].y; }
    bool rests() const { return ![view isTracking] && ![view isDragging] && ![view isDecelerating]; }
};

} // namespace harness
