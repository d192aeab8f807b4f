#include "Tweak/Panel/Corners.h"

#include "Tweak/Core/Accessibility/Aids.h"

#include <QuartzCore/QuartzCore.h>

namespace pendix {

void turnCorners(UIView *view, CGFloat from, CGFloat to, CFTimeInterval seconds) {
    view.layer.cornerRadius = to;
    if (reducesMotion()) return;
    CABasicAnimation *turning = [CABasicAnimation animationWithKeyPath:@"cornerRadius"];
    turning.timingFunction = [CAMediaTimingFunction functionWithName:kCAMediaTimingFunctionLinear];
    turning.fromValue = [NSNumber numberWithDouble:from];
    turning.toValue = [NSNumber numberWithDouble:to];
    turning.duration = seconds;
    [view.layer addAnimation:turning forKey:@"cornerRadius"];
}

} // namespace pendix
