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
constexpr CGFloat kReach = 10;            // around a mark

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

UIView *closeMarkAt(UIView *strip, CGPoint point) {
    UIView *near = nil;
    NSArray *views = strip.subviews;
    // The last one lies above the others.
    for (NSUInteger i = [views count]; i-- > 0;) {
        UIView *item = [views objectAtIndex:i];
        if ([item.layer.name length] == 0) continue;
        UIView *mark = subviewWithTag(item, tags::closeMark), *badge = subviewWithTag(item, tags::itemBadge);
        const CGPoint inItem = [item convertPoint:point fromView:strip];
        const BOOL shown = mark.frame.size.width > 0;
        if (shown && CGRectContainsPoint(mark.frame, inItem)) return mark;
        if ([item pointInside:inItem withEvent:nil]) return nil;
        if (!badge.hidden && CGRectContainsPoint(badge.frame, inItem)) return nil;
        if (shown && !near && CGRectContainsPoint(CGRectInset(mark.frame, -kReach, -kReach), inItem))
            near = mark;
    }
    return near;
}

} // namespace pendix
