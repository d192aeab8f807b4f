// What the platform has beyond <QuartzCore/CALayer.h>: used by the simulator and its tests only.
#pragma once

#include <QuartzCore/CALayer.h>

@interface CALayer (Further)
@property (nonatomic) CGAffineTransform affineTransform;
@property (nonatomic) CGSize shadowOffset;
// A CGImageRef or nil.
@property (nonatomic, retain) id contents;
@property (nonatomic) CGFloat contentsScale;
@property (nonatomic, readonly) CALayer *superlayer;
@property (nonatomic, copy) NSArray *sublayers;
- (void)addSublayer:(CALayer *)layer;
- (void)removeFromSuperlayer;
- (NSArray *)animationKeys;
- (void)removeAnimationForKey:(NSString *)key;
- (void)setNeedsLayout;
- (void)setNeedsDisplay;
@end
