// The blurring material of the system's own overlays.
#pragma once

#include <UIKit/UIView.h>

enum {
    _UIBackdropViewStyleDark = 2030,
    _UIBackdropViewStyleAdaptiveLight = 2060,
    _UIBackdropViewStylePasscodePaddle = 3900 // the passcode screen's
};

@interface _UIBackdropViewSettings : NSObject {
@public
    void *_backdropSettingsState;
}
+ (instancetype)settingsForStyle:(NSInteger)style;
@property (nonatomic, readonly) NSInteger style;
@property (nonatomic) CGFloat blurRadius;            // points
@property (nonatomic) CGFloat saturationDeltaFactor; // 1 leaves colours as they are
@property (nonatomic) CGFloat colorTintAlpha;
@property (nonatomic) CGFloat grayscaleTintLevel;
@property (nonatomic) CGFloat grayscaleTintAlpha;
@end

@interface _UIBackdropViewSettingsDark : _UIBackdropViewSettings
@end
@interface _UIBackdropViewSettingsAdaptiveLight : _UIBackdropViewSettings
@end
@interface _UIBackdropViewSettingsPasscodePaddle : _UIBackdropViewSettings
@end

// Shows what lies behind it, blurred and tinted as its settings say.
@interface _UIBackdropView : UIView {
@public
    void *_backdropState;
}
- (instancetype)initWithFrame:(CGRect)frame
      autosizesToFitSuperview:(BOOL)autosizes
                     settings:(_UIBackdropViewSettings *)settings;
@end
