#include "Tweak/Panel/NewUIScrollView.h"

#include "Tweak/Core/AnimationDuration.h"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/Scheme.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Panel/CloseMarks.h"

namespace {

constexpr float kDotDuration = 0.25f; // seconds

void showPage(UIScrollView *strip) {
    if (!pendix::isOn(pendix::keys::paging) || strip.frame.size.width <= 0) return;
    NSInteger page = static_cast<NSInteger>(strip.contentOffset.x / strip.frame.size.width);
    UIColor *ink = pendix::currentScheme().ink;
    float duration = pendix::animationDuration(kDotDuration);
    for (UIView *dot in pendix::subviewWithTag(strip.superview, pendix::tags::pageDots).subviews) {
        [UIView animateWithDuration:duration
                         animations:^{ dot.backgroundColor = dot.tag == page ? ink : [UIColor grayColor]; }];
    }
}

} // namespace

@implementation NewUIScrollView

- (instancetype)initWithFrame:(CGRect)frame {
    if ((self = [super initWithFrame:frame])) self.delegate = self;
    return self;
}

- (void)scrollViewDidScroll:(UIScrollView *)scrollView {
    _isScrolling = YES;
}

- (void)scrollViewDidEndDragging:(UIScrollView *)scrollView willDecelerate:(BOOL)decelerate {
    _isScrolling = NO;
}

- (void)scrollViewDidEndDecelerating:(UIScrollView *)scrollView {
    _isScrolling = NO;
    showPage(scrollView);
}

- (UIView *)hitTest:(CGPoint)point withEvent:(UIEvent *)event {
    UIView *hit = [super hitTest:point withEvent:event];
    UIView *mark = hit ? pendix::closeMarkAt(self, point) : nil;
    return mark ? mark : hit;
}

- (BOOL)scrolling {
    return _isScrolling;
}

- (void)contentDidChange {
    if (!self.dragging && !self.decelerating) _isScrolling = NO;
    showPage(self);
}

@end

@implementation swipeController

- (BOOL)gestureRecognizerShouldBegin:(UIGestureRecognizer *)recognizer {
    return YES;
}

- (BOOL)gestureRecognizer:(UIGestureRecognizer *)recognizer
    shouldRecognizeSimultaneouslyWithGestureRecognizer:(UIGestureRecognizer *)other {
    return YES;
}

- (BOOL)gestureRecognizer:(UIGestureRecognizer *)recognizer shouldReceiveTouch:(UITouch *)touch {
    return YES;
}

- (BOOL)touchesShouldBegin:(NSSet *)touches withEvent:(UIEvent *)event inContentView:(UIView *)view {
    return YES;
}

// The only NO: a touch on an item goes on when the strip begins to scroll.
- (BOOL)touchesShouldCancelInContentView:(UIView *)view {
    return NO;
}

@end
