// The layer tree: what every view draws with.
#pragma once

#include <CoreGraphics/CoreGraphics.h>
#include <QuartzCore/CATransform3D.h>

@class CAAnimation;

// A node of the layer tree. Properties read back the model's values; what is on screen at the moment is the
// presentation layer.
@interface CALayer : NSObject {
@public
    void *_layerState;
}

+ (instancetype)layer;

@property (nonatomic) CGRect frame;
@property (nonatomic) CGRect bounds;
@property (nonatomic) CGPoint position;
@property (nonatomic) CGFloat zPosition;
// In units of the bounds; (0.5, 0.5) is the centre.
@property (nonatomic) CGPoint anchorPoint;
@property (nonatomic) CATransform3D transform;

// 0 to 1; values outside are clamped.
@property (nonatomic) float opacity;
@property (nonatomic, getter=isHidden) BOOL hidden;
@property (nonatomic) BOOL masksToBounds;
@property (nonatomic) CGFloat cornerRadius;
@property (nonatomic) CGFloat borderWidth;
@property (nonatomic) CGColorRef borderColor;
@property (nonatomic) CGColorRef backgroundColor;

@property (nonatomic) CGColorRef shadowColor;
@property (nonatomic) float shadowOpacity;
@property (nonatomic) CGFloat shadowRadius;
// Copied; nil: the shadow follows what the layer shows.
@property (nonatomic) CGPathRef shadowPath;

@property (nonatomic, copy) NSString *name;

@property (nonatomic, retain) CALayer *mask;
- (void)insertSublayer:(CALayer *)layer atIndex:(unsigned)index;

// The layer as it is drawn at this moment; a copy.
- (id)presentationLayer;

// Adds a copy of the animation under `key`, replacing the one that runs under it. A nil key is allowed.
- (void)addAnimation:(CAAnimation *)animation forKey:(NSString *)key;
- (CAAnimation *)animationForKey:(NSString *)key;
- (void)removeAllAnimations;

- (void)layoutIfNeeded;
@end
