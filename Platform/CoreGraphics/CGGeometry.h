// Points, sizes, rectangles and affine transforms, in points unless said otherwise.
#pragma once

#import <Foundation/Foundation.h>

struct CGPoint {
    CGFloat x;
    CGFloat y;
};
typedef struct CGPoint CGPoint;

struct CGSize {
    CGFloat width;
    CGFloat height;
};
typedef struct CGSize CGSize;

struct CGRect {
    CGPoint origin;
    CGSize size;
};
typedef struct CGRect CGRect;

// x' = a x + c y + tx, y' = b x + d y + ty
struct CGAffineTransform {
    CGFloat a, b, c, d, tx, ty;
};
typedef struct CGAffineTransform CGAffineTransform;

static inline CGPoint CGPointMake(CGFloat x, CGFloat y) { return CGPoint{x, y}; }
static inline CGSize CGSizeMake(CGFloat width, CGFloat height) { return CGSize{width, height}; }
static inline CGRect CGRectMake(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    return CGRect{{x, y}, {width, height}};
}
static inline bool CGPointEqualToPoint(CGPoint a, CGPoint b) { return a.x == b.x && a.y == b.y; }
static inline bool CGSizeEqualToSize(CGSize a, CGSize b) {
    return a.width == b.width && a.height == b.height;
}

extern "C" {

extern const CGSize CGSizeZero;
extern const CGRect CGRectZero;

CGFloat CGRectGetMaxY(CGRect rect);

// `angle` in radians; positive turns x towards y.
CGAffineTransform CGAffineTransformMakeRotation(CGFloat angle);
CGAffineTransform CGAffineTransformMakeScale(CGFloat sx, CGFloat sy);
CGFloat CGRectGetMidX(CGRect rect);
CGFloat CGRectGetMidY(CGRect rect);
CGAffineTransform CGAffineTransformMakeTranslation(CGFloat tx, CGFloat ty);
// First `first`, then `second`.
CGAffineTransform CGAffineTransformConcat(CGAffineTransform first, CGAffineTransform second);
// A transform that cannot be inverted is returned as it is.
CGAffineTransform CGAffineTransformInvert(CGAffineTransform transform);
// The smallest upright rectangle around the transformed corners.
CGRect CGRectApplyAffineTransform(CGRect rect, CGAffineTransform transform);
CGRect CGRectInset(CGRect rect, CGFloat dx, CGFloat dy);
extern const CGPoint CGPointZero;
bool CGRectContainsPoint(CGRect rect, CGPoint point);
}
