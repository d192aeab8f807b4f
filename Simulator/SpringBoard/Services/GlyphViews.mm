// The fingerprint drawing: its state, not its look.
#include "SpringBoard/Versions.hpp"

#include <PassKit/PKGlyphView.h>

#include <UIKit/UIView.h>

namespace {

struct GlyphState {
    NSInteger style = 0, state = 0;
    UIColor *primary = nil, *secondary = nil; // retained
};

GlyphState &state(PKGlyphView *view) {
    if (!view->_glyphState) view->_glyphState = new GlyphState;
    return *static_cast<GlyphState *>(view->_glyphState);
}

void replace(UIColor *&slot, UIColor *color) {
    [color retain];
    [slot release];
    slot = color;
}

const sim::ClassVersions kClasses[] = {
    {"PKGlyphView", sim::kFirst8, sim::kNewest},
    {"PKFingerprintGlyphView", sim::kFirst8, sim::kNewest},
};
const bool kRegistered = (sim::registerClassVersions(kClasses), true);

} // namespace

@implementation PKGlyphView

- (instancetype)initWithStyle:(NSInteger)style {
    if ((self = [super initWithFrame:CGRectZero])) state(self).style = style;
    return self;
}

- (void)dealloc {
    [state(self).primary release];
    [state(self).secondary release];
    delete &state(self);
    [super dealloc];
}

- (UIColor *)primaryColor {
    return state(self).primary;
}
- (void)setPrimaryColor:(UIColor *)color {
    replace(state(self).primary, color);
}

- (UIColor *)secondaryColor {
    return state(self).secondary;
}
- (void)setSecondaryColor:(UIColor *)color {
    replace(state(self).secondary, color);
}

- (NSInteger)state {
    return state(self).state;
}

// Without a drawing there is nothing to animate: the completion comes at once.
- (void)setState:(NSInteger)next animated:(BOOL)animated completionHandler:(void (^)(void))completion {
    state(self).state = next;
    if (completion) completion();
}

@end

@implementation PKFingerprintGlyphView

- (void)_setProgress:(double)progress withDuration:(double)duration forShapeLayerAtIndex:(NSUInteger)index {
}

@end
