#include "Tweak/Panel/CloseMarks.h"

#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Panel/Corners.h"

namespace pendix {

namespace {

constexpr CFTimeInterval kRounding = 0.4; // seconds
constexpr CGFloat kCorner = 4;            // the point around which the mark grows
constexpr CGFloat kSmaller = 4;           // than a badge

void morph(UIView *item, BOOL shown, float duration) {
    UIView *mark = subviewWithTag(item, tags::closeMark);
    const CGFloat side = panelBadgeHeight() - kSmaller, radius = side * 0.5;
    turnCorners(mark, shown ? 0 : radius, shown ? radius : 0, kRounding);
    CGRect frame = shown ? CGRectMake(kCorner - radius, kCorner - radius, side, side)
                         : CGRectMake(kCorner, kCorner, 0, 0);
    [UIView animateWithDuration:duration animations:^{ mark.frame = frame; }];
}

} // namespace

void showCloseMark(UIView *item, float duration) { morph(item, YES, duration); }
void hideCloseMark(UIView *item, float duration) { morph(item, NO, duration); }

} // namespace pendix
