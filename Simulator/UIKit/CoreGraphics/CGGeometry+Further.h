// What the platform has beyond <CoreGraphics/CGGeometry.h>: used by the simulator and its tests only.
#pragma once

#include <CoreGraphics/CGGeometry.h>

extern "C" {
extern const CGPoint CGPointZero;
extern const CGAffineTransform CGAffineTransformIdentity;
CGFloat CGRectGetMinX(CGRect rect);
CGFloat CGRectGetMidX(CGRect rect);
CGFloat CGRectGetMaxX(CGRect rect);
CGFloat CGRectGetMinY(CGRect rect);
CGFloat CGRectGetMidY(CGRect rect);
CGFloat CGRectGetWidth(CGRect rect);
CGFloat CGRectGetHeight(CGRect rect);
bool CGRectContainsPoint(CGRect rect, CGPoint point);
bool CGRectEqualToRect(CGRect a, CGRect b);
bool CGRectIsEmpty(CGRect rect);
bool CGRectIntersectsRect(CGRect a, CGRect b);
CGRect CGRectIntersection(CGRect a, CGRect b);
CGRect CGRectInset(CGRect rect, CGFloat dx, CGFloat dy);
CGRect CGRectOffset(CGRect rect, CGFloat dx, CGFloat dy);
CGAffineTransform CGAffineTransformMake(CGFloat a, CGFloat b, CGFloat c, CGFloat d, CGFloat tx, CGFloat ty);
CGAffineTransform CGAffineTransformMakeTranslation(CGFloat tx, CGFloat ty);
// First `first`, then `second`.
CGAffineTransform CGAffineTransformConcat(CGAffineTransform first, CGAffineTransform second);
// A transform that cannot be inverted is returned as it is.
CGAffineTransform CGAffineTransformInvert(CGAffineTransform transform);
bool CGAffineTransformIsIdentity(CGAffineTransform transform);
bool CGAffineTransformEqualToTransform(CGAffineTransform a, CGAffineTransform b);
CGPoint CGPointApplyAffineTransform(CGPoint point, CGAffineTransform transform);
// The smallest upright rectangle around the transformed corners.
CGRect CGRectApplyAffineTransform(CGRect rect, CGAffineTransform transform);
}
