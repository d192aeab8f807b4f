// The glyph of a Touch ID sheet: a fingerprint that fills while a finger rests, and a tick for a match.
#include "FingerprintView.h"
#include "GlyphPaths.hpp"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "Runtime/Objc/Versions.hpp"
#include "ShapeLayers.h"
#include "UIKit/QuartzCore/CAShapeLayer+Further.h"

#include <PassKit/PKGlyphView.h>
#include <UIKit/UIKit.h>

#include <algorithm>
#include <memory>
#include <objc/blocks_runtime.h>

namespace {

// Seconds. (Inferred.)
constexpr double kFill = 0.6, kEmpty = 0.3, kFinish = 0.2, kTick = 0.4, kFade = 0.2;

struct GlyphState {
    NSInteger style = 0, state = PKGlyphViewStateIdle;
    UIColor *primary = nil, *secondary = nil;  // retained
    PKFingerprintGlyphView *fingerprint = nil; // retained by the view tree, as what follows is
    UIView *tick = nil;
    CAShapeLayer *circle = nil, *mark = nil;
};

GlyphState &state(PKGlyphView *view) { return sim::lazyState<GlyphState>(view->_glyphState); }

void replace(UIColor *&slot, UIColor *color) { sim::retainInto(slot, color); }

void recolor(PKGlyphView *view) {
    auto &mine = state(view);
    [mine.fingerprint setPrimaryColor:mine.primary secondaryColor:mine.secondary];
    for (CAShapeLayer *line : {mine.circle, mine.mark}) [line setStrokeColor:[mine.primary CGColor]];
}

void drawTick(PKGlyphView *view, CGFloat share, double duration, void (^completion)(BOOL)) {
    auto &mine = state(view);
    [UIView animateWithDuration:duration
                     animations:^{
                         [mine.circle setStrokeEnd:share];
                         [mine.mark setStrokeEnd:share];
                     }
                     completion:completion];
    [UIView animateWithDuration:std::min(kFade, duration)
                     animations:^{ [mine.fingerprint setAlpha:1 - share]; }];
}

// Once the ridges rest, and after any change of state in between: a completion always runs, once.
void whenRidgesRest(PKGlyphView *view, void (^then)(void)) {
    // Let go of with the task, which may never run: the process may end before.
    std::shared_ptr<void> work(reinterpret_cast<void *>(Block_copy(then)),
                               [](void *block) { Block_release(block); });
    sim::Clock::shared().schedule([state(view).fingerprint restTime], sim::Clock::Phase::animation,
                                  [work] { reinterpret_cast<void (^)(void)>(work.get())(); });
}

const sim::ClassVersions kClasses[] = {{"PKGlyphView", sim::kFirst8, sim::kNewest}};
const bool kRegistered = (sim::registerClassVersions(kClasses), true);

} // namespace

@implementation PKGlyphView

- (instancetype)initWithStyle:(NSInteger)style {
    if (!(self = [super initWithFrame:CGRectZero])) return nil;
    auto &mine = state(self);
    mine.style = style;
    mine.primary = [[UIColor colorWithRed:1 green:0.23 blue:0.19 alpha:1] retain];
    mine.secondary = [[UIColor colorWithWhite:0.6 alpha:1] retain];
    mine.fingerprint = [[[PKFingerprintGlyphView alloc] initWithFrame:CGRectZero] autorelease];
    mine.tick = [[[UIView alloc] initWithFrame:CGRectZero] autorelease];
    for (UIView *part : {static_cast<UIView *>(mine.fingerprint), mine.tick}) {
        [part setUserInteractionEnabled:NO];
        [self addSubview:part];
    }
    mine.circle = sim::addLine([mine.tick layer]);
    mine.mark = sim::addLine([mine.tick layer]);
    for (CAShapeLayer *line : {mine.circle, mine.mark}) [line setStrokeEnd:0];
    recolor(self);
    return self;
}

- (void)dealloc {
    [state(self).primary release];
    [state(self).secondary release];
    delete &state(self);
    [super dealloc];
}

// A square in the middle.
- (void)layoutSubviews {
    [super layoutSubviews];
    auto &mine = state(self);
    CGSize size = [self bounds].size;
    CGFloat side = std::min(size.width, size.height);
    CGRect square = CGRectMake((size.width - side) / 2, (size.height - side) / 2, side, side);
    [mine.fingerprint setFrame:square];
    [mine.tick setFrame:square];
    sim::setLine(mine.circle, sim::tickCircle(side), sim::tickWidth(side));
    sim::setLine(mine.mark, sim::tickMark(side), sim::tickWidth(side));
}

- (UIColor *)primaryColor {
    return state(self).primary;
}
- (void)setPrimaryColor:(UIColor *)color {
    replace(state(self).primary, color);
    recolor(self);
}

- (UIColor *)secondaryColor {
    return state(self).secondary;
}
- (void)setSecondaryColor:(UIColor *)color {
    replace(state(self).secondary, color);
    recolor(self);
}

- (NSInteger)state {
    return state(self).state;
}

// States that have no drawing here keep the one that there is.
- (void)setState:(NSInteger)next animated:(BOOL)animated completionHandler:(void (^)(void))completion {
    auto &mine = state(self);
    mine.state = next;
    bool moves = animated && [self window];
    auto seconds = [&](double duration) { return moves ? duration : 0; };
    bool ticked = next == PKGlyphViewStateTicked;
    if (ticked || next == PKGlyphViewStateScanning)
        [mine.fingerprint setProgress:1 withDuration:seconds(ticked ? kFinish : kFill)];
    if (next == PKGlyphViewStateIdle) [mine.fingerprint setProgress:0 withDuration:seconds(kEmpty)];
    if (next == PKGlyphViewStateIdle || next == PKGlyphViewStateScanning) drawTick(self, 0, 0, nil);
    if (!moves) {
        if (ticked) drawTick(self, 1, 0, nil);
        if (completion) completion();
        return;
    }
    whenRidgesRest(self, ^{
        void (^finish)(BOOL) = ^(BOOL) {
            if (completion) completion();
        };
        if (ticked && state(self).state == PKGlyphViewStateTicked) {
            drawTick(self, 1, kTick, finish);
        } else {
            finish(YES);
        }
    });
}

@end
