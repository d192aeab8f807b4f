#include "Tweak/Panel/CloseMarks.h"

#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"

namespace pendix {

namespace {

constexpr CFTimeInterval kRounding = 0.4; // seconds, whatever `fast` says
constexpr CGFloat kCorner = 4;            // the point around which the mark grows
constexpr CGFloat kSmaller = 4;           // than a badge

void morph(UIView *item, BOOL shown, float duration) {
    UIView *mark = subviewWithTag(item, tags::closeMark);
    const CGFloat side = panelBadgeHeight() - kSmaller, radius = side * 0.5;
    CABasicAnimation *rounding = [CABasicAnimation animationWithKeyPath:@"cornerRadius"];
    rounding.timingFunction = [CAMediaTimingFunction functionWithName:kCAMediaTimingFunctionLinear];
    rounding.duration = kRounding;
    rounding.fromValue = [NSNumber numberWithDouble:shown ? 0 : radius];
    rounding.toValue = [NSNumber numberWithDouble:shown ? radius : 0];
    mark.layer.cornerRadius = shown ? radius : 0;
    [mark.layer addAnimation:rounding forKey:@"cornerRadius"];
    CGRect frame = shown ? CGRectMake(kCorner - radius, kCorner - radius, side, side)
                         : CGRectMake(kCorner, kCorner, 0, 0);
    [UIView animateWithDuration:duration animations:^{ mark.frame = frame; }];
}

} // namespace

void showCloseMark(UIView *item, float duration) { morph(item, YES, duration); }
void hideCloseMark(UIView *item, float duration) { morph(item, NO, duration); }

} // namespace pendix
