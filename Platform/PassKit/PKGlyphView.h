// The fingerprint drawing of the system's own Touch ID sheets; from 8.0 on.
#pragma once

#include <UIKit/UIView.h>

enum { PKGlyphViewStateIdle = 0, PKGlyphViewStateScanning = 1, PKGlyphViewStateTicked = 6 };
enum { PKGlyphViewStyleDefault = 0 };

// The completion runs when the drawing has come to rest.
@interface PKGlyphView : UIView {
@public
    void *_glyphState;
}
- (instancetype)initWithStyle:(NSInteger)style;
@property (nonatomic, copy) UIColor *primaryColor;
@property (nonatomic, copy) UIColor *secondaryColor;
- (void)setState:(NSInteger)state animated:(BOOL)animated completionHandler:(void (^)(void))completion;
@end

// The ridges of the fingerprint, each a shape layer of which a share from 0 to 1 is in the primary colour.
@interface PKFingerprintGlyphView : UIView {
@public
    void *_fingerprintState;
}
- (void)_setProgress:(double)progress withDuration:(double)duration forShapeLayerAtIndex:(NSUInteger)index;
@end
