#include "CATransform3D+Further.h"

#include <QuartzCore/CATransform3D.h>

#include <cmath>

extern "C" {

const CATransform3D CATransform3DIdentity = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

CATransform3D CATransform3DMakeRotation(CGFloat angle, CGFloat x, CGFloat y, CGFloat z) {
    CGFloat length = std::sqrt(x * x + y * y + z * z);
    if (length == 0) return CATransform3DIdentity;
    x /= length, y /= length, z /= length;
    CGFloat c = std::cos(angle), s = std::sin(angle), k = 1 - c;
    return {x * x * k + c,
            x * y * k + z * s,
            x * z * k - y * s,
            0,
            x * y * k - z * s,
            y * y * k + c,
            y * z * k + x * s,
            0,
            x * z * k + y * s,
            y * z * k - x * s,
            z * z * k + c,
            0,
            0,
            0,
            0,
            1};
}

CATransform3D CATransform3DMakeAffineTransform(CGAffineTransform t) {
    return {t.a, t.b, 0, 0, t.c, t.d, 0, 0, 0, 0, 1, 0, t.tx, t.ty, 0, 1};
}

CGAffineTransform CATransform3DGetAffineTransform(CATransform3D t) {
    return {t.m11, t.m12, t.m21, t.m22, t.m41, t.m42};
}

} // extern "C"
