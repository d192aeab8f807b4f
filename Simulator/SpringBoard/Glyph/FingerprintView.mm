#include "FingerprintView.h"

#include "GlyphPaths.hpp"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Versions.hpp"
#include "ShapeLayers.h"
#include "UIKit/QuartzCore/CAShapeLayer+Further.h"
#include "UIKit/QuartzCore/LayerState.h"

#include <UIKit/UIKit.h>

#include <algorithm>

namespace {

// Two layers a ridge: all of it in the secondary colour, and above it the share in the primary one.
struct FingerprintState {
    std::vector<CAShapeLayer *> grounds, shares; // retained by the layer tree
};

FingerprintState &state(PKFingerprintGlyphView *view) {
    return sim::lazyState<FingerprintState>(view->_fingerprintState);
}

const sim::ClassVersions kClasses[] = {{"PKFingerprintGlyphView", sim::kFirst8, sim::kNewest}};
const bool kRegistered = (sim::registerClassVersions(kClasses), true);

} // namespace

@implementation PKFingerprintGlyphView

- (instancetype)initWithFrame:(CGRect)frame {
    if (!(self = [super initWithFrame:frame])) return nil;
    size_t count = sim::fingerprintRidges(1).size();
    for (auto *layers : {&state(self).grounds, &state(self).shares})
        for (size_t i = 0; i < count; ++i) layers->push_back(sim::addLine([self layer]));
    for (CAShapeLayer *share : state(self).shares) [share setStrokeEnd:0];
    return self;
}

- (void)dealloc {
    delete &state(self);
    [super dealloc];
}

- (void)layoutSubviews {
    [super layoutSubviews];
    double side = std::min([self bounds].size.width, [self bounds].size.height);
    auto ridges = sim::fingerprintRidges(side);
    for (auto *layers : {&state(self).grounds, &state(self).shares})
        for (size_t i = 0; i < ridges.size(); ++i)
            sim::setLine((*layers)[i], ridges[i], sim::ridgeWidth(side));
}

- (void)_setProgress:(double)progress withDuration:(double)duration forShapeLayerAtIndex:(NSUInteger)index {
    if (index >= state(self).shares.size()) return;
    CAShapeLayer *share = state(self).shares[index];
    [UIView animateWithDuration:duration animations:^{ [share setStrokeEnd:progress]; }];
}

@end

@implementation PKFingerprintGlyphView (Simulator)

- (void)setPrimaryColor:(UIColor *)primary secondaryColor:(UIColor *)secondary {
    for (CAShapeLayer *ground : state(self).grounds) [ground setStrokeColor:[secondary CGColor]];
    for (CAShapeLayer *share : state(self).shares) [share setStrokeColor:[primary CGColor]];
}

- (void)setProgress:(double)progress withDuration:(double)duration {
    for (NSUInteger i = 0; i < state(self).shares.size(); ++i)
        [self _setProgress:progress withDuration:duration forShapeLayerAtIndex:i];
}

- (sim::Nanos)restTime {
    sim::Nanos latest = sim::Clock::shared().now();
    for (CAShapeLayer *share : state(self).shares)
        for (const auto &animation : sim::state(share).animations)
            latest = std::max(latest, animation.timing.end().value_or(latest));
    return latest;
}

@end
