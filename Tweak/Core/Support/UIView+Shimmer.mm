#include "Tweak/Core/Support/UIView+Shimmer.h"

#include <UIKit/UIKit.h>

#include <math.h>

namespace {

constexpr CFTimeInterval kSweep = 5; // seconds
constexpr CGFloat kDimmest = 0.1;

NSArray *numbers(double first, double second, double third) {
    return [NSArray arrayWithObjects:[NSNumber numberWithDouble:first], [NSNumber numberWithDouble:second],
                                     [NSNumber numberWithDouble:third], nil];
}

} // namespace

@implementation UIView (Shimmer)

- (void)startShimmering {
    CGSize size = self.bounds.size;
    id opaque = (id)[UIColor blackColor].CGColor, dim = (id)[UIColor colorWithWhite:0 alpha:kDimmest].CGColor;
    CAGradientLayer *band = [CAGradientLayer layer];
    band.colors = [NSArray arrayWithObjects:opaque, dim, opaque, nil];
    band.frame = CGRectMake(-size.width, 0, 3 * size.width, size.height);
    band.startPoint = CGPointMake(0, 0.5);
    band.endPoint = CGPointMake(2.5, 0.525);
    band.locations = numbers(0.4, 0.5, 0.6);
    self.layer.mask = band;

    CABasicAnimation *sweep = [CABasicAnimation animationWithKeyPath:@"locations"];
    sweep.fromValue = numbers(0, 0.1, 0.2);
    sweep.toValue = numbers(0.8, 0.9, 1.0);
    sweep.duration = kSweep;
    sweep.repeatCount = HUGE_VALF;
    [band addAnimation:sweep forKey:@"shimmer"];
}

- (void)stopShimmering {
    self.layer.mask = nil;
}

@end
