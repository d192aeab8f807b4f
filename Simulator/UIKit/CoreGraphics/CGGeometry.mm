#include "CGGeometry+Further.h"

#include <CoreGraphics/CGGeometry.h>

#include <algorithm>
#include <cmath>

extern "C" {

const CGPoint CGPointZero = {0, 0};
const CGSize CGSizeZero = {0, 0};
const CGRect CGRectZero = {{0, 0}, {0, 0}};
const CGAffineTransform CGAffineTransformIdentity = {1, 0, 0, 1, 0, 0};

CGFloat CGRectGetMinX(CGRect rect) { return std::min(rect.origin.x, rect.origin.x + rect.size.width); }
CGFloat CGRectGetMidX(CGRect rect) { return rect.origin.x + rect.size.width / 2; }
CGFloat CGRectGetMaxX(CGRect rect) { return std::max(rect.origin.x, rect.origin.x + rect.size.width); }
CGFloat CGRectGetMinY(CGRect rect) { return std::min(rect.origin.y, rect.origin.y + rect.size.height); }
CGFloat CGRectGetMidY(CGRect rect) { return rect.origin.y + rect.size.height / 2; }
CGFloat CGRectGetMaxY(CGRect rect) { return std::max(rect.origin.y, rect.origin.y + rect.size.height); }
CGFloat CGRectGetWidth(CGRect rect) { return std::abs(rect.size.width); }
CGFloat CGRectGetHeight(CGRect rect) { return std::abs(rect.size.height); }

bool CGRectContainsPoint(CGRect rect, CGPoint point) {
    return point.x >= CGRectGetMinX(rect) && point.x < CGRectGetMaxX(rect) &&
           point.y >= CGRectGetMinY(rect) && point.y < CGRectGetMaxY(rect);
}

bool CGRectEqualToRect(CGRect a, CGRect b) {
    return CGPointEqualToPoint(a.origin, b.origin) && CGSizeEqualToSize(a.size, b.size);
}

bool CGRectIsEmpty(CGRect rect) { return rect.size.width == 0 || rect.size.height == 0; }

bool CGRectIntersectsRect(CGRect a, CGRect b) {
    return CGRectGetMinX(a) < CGRectGetMaxX(b) && CGRectGetMinX(b) < CGRectGetMaxX(a) &&
           CGRectGetMinY(a) < CGRectGetMaxY(b) && CGRectGetMinY(b) < CGRectGetMaxY(a);
}

CGRect CGRectUnion(CGRect a, CGRect b) {
    CGFloat left = std::min(CGRectGetMinX(a), CGRectGetMinX(b)),
            top = std::min(CGRectGetMinY(a), CGRectGetMinY(b));
    CGFloat right = std::max(CGRectGetMaxX(a), CGRectGetMaxX(b));
    return CGRectMake(left, top, right - left, std::max(CGRectGetMaxY(a), CGRectGetMaxY(b)) - top);
}

CGRect CGRectIntersection(CGRect a, CGRect b) {
    if (!CGRectIntersectsRect(a, b)) return CGRectZero;
    CGFloat x = std::max(CGRectGetMinX(a), CGRectGetMinX(b));
    CGFloat y = std::max(CGRectGetMinY(a), CGRectGetMinY(b));
    return CGRectMake(x, y, std::min(CGRectGetMaxX(a), CGRectGetMaxX(b)) - x,
                      std::min(CGRectGetMaxY(a), CGRectGetMaxY(b)) - y);
}

CGRect CGRectInset(CGRect rect, CGFloat dx, CGFloat dy) {
    return CGRectMake(rect.origin.x + dx, rect.origin.y + dy, rect.size.width - 2 * dx,
                      rect.size.height - 2 * dy);
}

CGRect CGRectOffset(CGRect rect, CGFloat dx, CGFloat dy) {
    return CGRectMake(rect.origin.x + dx, rect.origin.y + dy, rect.size.width, rect.size.height);
}

CGAffineTransform CGAffineTransformMake(CGFloat a, CGFloat b, CGFloat c, CGFloat d, CGFloat tx, CGFloat ty) {
    return {a, b, c, d, tx, ty};
}

CGAffineTransform CGAffineTransformMakeRotation(CGFloat angle) {
    CGFloat sine = std::sin(angle), cosine = std::cos(angle);
    return {cosine, sine, -sine, cosine, 0, 0};
}

CGAffineTransform CGAffineTransformMakeScale(CGFloat sx, CGFloat sy) { return {sx, 0, 0, sy, 0, 0}; }

CGAffineTransform CGAffineTransformMakeTranslation(CGFloat tx, CGFloat ty) { return {1, 0, 0, 1, tx, ty}; }

CGAffineTransform CGAffineTransformConcat(CGAffineTransform first, CGAffineTransform second) {
    return {first.a * second.a + first.b * second.c,
            first.a * second.b + first.b * second.d,
            first.c * second.a + first.d * second.c,
            first.c * second.b + first.d * second.d,
            first.tx * second.a + first.ty * second.c + second.tx,
            first.tx * second.b + first.ty * second.d + second.ty};
}

CGAffineTransform CGAffineTransformInvert(CGAffineTransform t) {
    CGFloat determinant = t.a * t.d - t.b * t.c;
    if (determinant == 0) return t;
    return {t.d / determinant,
            -t.b / determinant,
            -t.c / determinant,
            t.a / determinant,
            (t.c * t.ty - t.d * t.tx) / determinant,
            (t.b * t.tx - t.a * t.ty) / determinant};
}

bool CGAffineTransformEqualToTransform(CGAffineTransform a, CGAffineTransform b) {
    return a.a == b.a && a.b == b.b && a.c == b.c && a.d == b.d && a.tx == b.tx && a.ty == b.ty;
}

bool CGAffineTransformIsIdentity(CGAffineTransform transform) {
    return CGAffineTransformEqualToTransform(transform, CGAffineTransformIdentity);
}

CGPoint CGPointApplyAffineTransform(CGPoint point, CGAffineTransform t) {
    return {t.a * point.x + t.c * point.y + t.tx, t.b * point.x + t.d * point.y + t.ty};
}

CGRect CGRectApplyAffineTransform(CGRect rect, CGAffineTransform transform) {
    const CGFloat xs[] = {CGRectGetMinX(rect), CGRectGetMaxX(rect)};
    const CGFloat ys[] = {CGRectGetMinY(rect), CGRectGetMaxY(rect)};
    CGPoint low = CGPointApplyAffineTransform({xs[0], ys[0]}, transform), high = low;
    for (CGFloat x : xs) {
        for (CGFloat y : ys) {
            CGPoint corner = CGPointApplyAffineTransform({x, y}, transform);
            low = {std::min(low.x, corner.x), std::min(low.y, corner.y)};
            high = {std::max(high.x, corner.x), std::max(high.y, corner.y)};
        }
    }
    return CGRectMake(low.x, low.y, high.x - low.x, high.y - low.y);
}

} // extern "C"
