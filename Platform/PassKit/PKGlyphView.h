// The fingerprint drawing of the system's own Touch ID sheets; from 8.0 on.
#pragma once

#include <UIKit/UIView.h>

// States: 0 idle, 1 scanning, 6 ticked.
@interface PKGlyphView : UIView {
@public
    void *_glyphState;
}
- (instancetype)initWithStyle:(NSInteger)style;
@property (nonatomic, copy) UIColor *primaryColor;
@property (nonatomic, copy) UIColor *secondaryColor;
- (void)setState:(NSInteger)state animated:(BOOL)animated completionHandler:(void (^)(void))completion;
@end

@interface PKFingerprintGlyphView : UIView {
@public
    void *_fingerprintState;
}
- (void)_setProgress:(double)progress withDuration:(double)duration forShapeLayerAtIndex:(NSUInteger)index;
@end
