// What the platform has beyond <QuartzCore/CATransform3D.h>: used by the simulator and its tests only.
#pragma once

#include <QuartzCore/CATransform3D.h>

extern "C" {
extern const CATransform3D CATransform3DIdentity;
// `angle` in radians around the axis (x, y, z).
CATransform3D CATransform3DMakeRotation(CGFloat angle, CGFloat x, CGFloat y, CGFloat z);
CATransform3D CATransform3DMakeAffineTransform(CGAffineTransform transform);
// The part in the plane; what leaves the plane is dropped.
CGAffineTransform CATransform3DGetAffineTransform(CATransform3D transform);
}
