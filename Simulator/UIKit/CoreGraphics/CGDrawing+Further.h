// What the platform has beyond <CoreGraphics/CGDrawing.h>: used by the simulator and its tests only.
#pragma once

#include <CoreGraphics/CGDrawing.h>

extern "C" {
CFTypeRef CFRetain(CFTypeRef object);
CGPathRef CGPathCreateWithRect(CGRect rect, const CGAffineTransform *transform);
void CGPathRelease(CGPathRef path);
}
