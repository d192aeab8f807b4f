#include "ScrollStage.h"

#include <algorithm>

@implementation ScrollWitness

- (void)scrollViewDidScroll:(UIScrollView *)scrollView {
    CGPoint offset = [scrollView contentOffset];
    least = {std::min(least.x, offset.x), std::min(least.y, offset.y)};
    most = {std::max(most.x, offset.x), std::max(most.y, offset.y)};
    ++scrolls;
}
- (void)scrollViewWillBeginDragging:(UIScrollView *)scrollView {
    harness::note("will drag");
}
- (void)scrollViewDidEndDragging:(UIScrollView *)scrollView willDecelerate:(BOOL)decelerate {
    harness::note(decelerate ? "end drag goes on" : "end drag stops");
}
- (void)scrollViewWillBeginDecelerating:(UIScrollView *)scrollView {
    harness::note("will decelerate");
}
- (void)scrollViewDidEndDecelerating:(UIScrollView *)scrollView {
    harness::note("did decelerate");
}
- (void)scrollViewDidEndScrollingAnimation:(UIScrollView *)scrollView {
    harness::note("did animate");
}

@end
