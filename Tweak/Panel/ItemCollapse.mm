#include "Tweak/Panel/ItemCollapse.h"

#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/Tags.h"

namespace pendix {

namespace {

// For what keeps its size in a smaller frame: texts, centred pictures and shadows.
void scaleAway(UIView *view, CGPoint point) {
    constexpr CGFloat kAlmostNothing = 0.001; // a scale of 0 has no way back
    view.center = point;
    view.transform =
        CGAffineTransformConcat(view.transform, CGAffineTransformMakeScale(kAlmostNothing, kAlmostNothing));
}

} // namespace

void separateShadow(UIView *item) {
    CALayer *layer = item.layer;
    UIView *icon = subviewWithTag(item, tags::itemCardIcon);
    if (!icon) return;
    UIView *caster = [[UIView alloc] initWithFrame:icon.frame];
    caster.layer.shadowColor = layer.shadowColor;
    caster.layer.shadowOpacity = layer.shadowOpacity;
    caster.layer.shadowRadius = layer.shadowRadius;
    caster.layer.shadowPath = [UIBezierPath bezierPathWithRect:caster.bounds].CGPath;
    [item insertSubview:caster atIndex:0];
    [caster release];
    layer.shadowOpacity = 0;
}

void shrinkToCentre(UIView *item) {
    const CGPoint centre = CGPointMake(item.bounds.size.width * 0.5, item.bounds.size.height * 0.5);
    for (UIView *part in item.subviews) {
        for (UIView *inner in part.subviews) scaleAway(inner, CGPointZero);
        if ([part isKindOfClass:[UILabel class]] || part.layer.shadowOpacity != 0) {
            scaleAway(part, centre);
        } else {
            part.frame = CGRectMake(centre.x, centre.y, 0, 0);
        }
    }
}

} // namespace pendix
