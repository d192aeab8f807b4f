// What the platform has beyond <CoreGraphics/CGGeometry.h>: used by the simulator and its tests only.
#pragma once

#include <CoreGraphics/CGGeometry.h>

extern "C" {
extern const CGAffineTransform CGAffineTransformIdentity;
CGFloat CGRectGetMinX(CGRect rect);
CGFloat CGRectGetMaxX(CGRect rect);
CGFloat CGRectGetMinY(CGRect rect);
CGFloat CGRectGetWidth(CGRect rect);
CGFloat CGRectGetHeight(CGRect rect);
bool CGRectEqualToRect(CGRect a, CGRect b);
bool CGRectIsEmpty(CGRect rect);
bool CGRectIntersectsRect(CGRect a, CGRect b);
CGRect CGRectIntersection(CGRect a, CGRect b);
CGRect CGRectUnion(CGRect a, CGRect b);
CGRect CGRectOffset(CGRect rect, CGFloat dx, CGFloat dy);
CGAffineTransform CGAffineTransformMake(CGFloat a, CGFloat b, CGFloat c, CGFloat d, CGFloat tx, CGFloat ty);
bool CGAffineTransformIsIdentity(CGAffineTransform transform);
bool CGAffineTransformEqualToTransform(CGAffineTransform a, CGAffineTransform b);
CGPoint CGPointApplyAffineTransform(CGPoint point, CGAffineTransform transform);
}
