#include "BackdropState.h"

#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "UIKit/CoreGraphics/CGObjects.h"
#include "_UIBackdropView+Further.h"

namespace {

struct Look {
    NSInteger style;
    const char *className;
    CGFloat blurRadius, saturation;
    CGFloat gray, grayAlpha;
    CGFloat tint, tintAlpha; // a white level
};

// The numbers are inferred from how the materials look, not read from a device.
constexpr Look kLooks[] = {
    {_UIBackdropViewStyleDark, "_UIBackdropViewSettingsDark", 20, 1.8, 0.11, 0.25, 0.07, 0.64},
    {_UIBackdropViewStyleAdaptiveLight, "_UIBackdropViewSettingsAdaptiveLight", 20, 1.8, 1, 0.15, 1, 0.38},
    {_UIBackdropViewStylePasscodePaddle, "_UIBackdropViewSettingsPasscodePaddle", 28, 1.6, 0.05, 0.35, 0,
     0.36},
};
constexpr Look kPlain = {0, "_UIBackdropViewSettings", 20, 1, 0, 0, 1, 0};

const Look &look(NSInteger style) {
    for (const auto &candidate : kLooks)
        if (candidate.style == style) return candidate;
    return kPlain;
}

struct SettingsState {
    NSInteger style = 0;
    CGFloat blurRadius = 0, saturation = 1, gray = 0, grayAlpha = 0, tintAlpha = 0;
    UIColor *tint = nil; // retained
};

SettingsState &state(_UIBackdropViewSettings *settings) {
    return sim::lazyState<SettingsState>(settings->_backdropSettingsState);
}

} // namespace

namespace sim {

render::Backdrop backdrop(_UIBackdropViewSettings *settings) {
    if (!settings) return {};
    const auto &mine = ::state(settings);
    render::Backdrop result{.blurRadius = mine.blurRadius, .saturation = mine.saturation, .tint = {}};
    result.grayLevel = mine.gray;
    result.grayAlpha = mine.grayAlpha;
    if (mine.tint && mine.tintAlpha > 0) {
        result.tint = flatColor(object([mine.tint CGColor])->paint);
        result.tint->alpha *= mine.tintAlpha;
    }
    return result;
}

} // namespace sim

@implementation _UIBackdropViewSettings

+ (instancetype)settingsForStyle:(NSInteger)style {
    const Look &chosen = look(style);
    // Asked on the base class, the style chooses the class.
    Class known = self == [_UIBackdropViewSettings class]
                      ? NSClassFromString([NSString stringWithUTF8String:chosen.className])
                      : self;
    _UIBackdropViewSettings *settings = [[(known ? known : self) new] autorelease];
    state(settings) = {style,
                       chosen.blurRadius,
                       chosen.saturation,
                       chosen.gray,
                       chosen.grayAlpha,
                       chosen.tintAlpha,
                       [[UIColor colorWithWhite:chosen.tint alpha:1] retain]};
    return settings;
}

- (void)dealloc {
    [state(self).tint release];
    delete &state(self);
    [super dealloc];
}

- (NSInteger)style {
    return state(self).style;
}

- (CGFloat)blurRadius {
    return state(self).blurRadius;
}
- (void)setBlurRadius:(CGFloat)radius {
    state(self).blurRadius = radius;
}

- (CGFloat)saturationDeltaFactor {
    return state(self).saturation;
}
- (void)setSaturationDeltaFactor:(CGFloat)factor {
    state(self).saturation = factor;
}

- (UIColor *)colorTint {
    return state(self).tint;
}
- (void)setColorTint:(UIColor *)color {
    sim::retainInto(state(self).tint, color);
}

- (CGFloat)colorTintAlpha {
    return state(self).tintAlpha;
}
- (void)setColorTintAlpha:(CGFloat)alpha {
    state(self).tintAlpha = alpha;
}

- (CGFloat)grayscaleTintLevel {
    return state(self).gray;
}
- (void)setGrayscaleTintLevel:(CGFloat)level {
    state(self).gray = level;
}

- (CGFloat)grayscaleTintAlpha {
    return state(self).grayAlpha;
}
- (void)setGrayscaleTintAlpha:(CGFloat)alpha {
    state(self).grayAlpha = alpha;
}

@end

@implementation _UIBackdropViewSettingsDark
@end

@implementation _UIBackdropViewSettingsAdaptiveLight
@end

@implementation _UIBackdropViewSettingsPasscodePaddle
@end
