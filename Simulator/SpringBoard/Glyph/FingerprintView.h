#pragma once

#include "Runtime/Time/Clock.hpp"

#include <PassKit/PKGlyphView.h>

@interface PKFingerprintGlyphView (Simulator)
- (void)setPrimaryColor:(UIColor *)primary secondaryColor:(UIColor *)secondary;
// Every ridge, through `_setProgress:withDuration:forShapeLayerAtIndex:`.
- (void)setProgress:(double)progress withDuration:(double)duration;
// When the last ridge has come to rest.
- (sim::Nanos)restTime;
@end
