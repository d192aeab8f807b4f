#include "ViewState.h"

#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "UIKit/QuartzCore/AnimationBlock.h"
#include "UIKit/Touch/RecognizerState.h"
#include "UIKit/UIKit+Further.h"
#include "UIResponder+Further.h"
#include "UIView+Further.h"

#include <UIKit/UIViewController.h>

#include <cmath>

namespace sim {

ViewState &state(UIView *view) { return lazyState<ViewState>(view->_viewState); }

} // namespace sim

using sim::state;

@implementation UIView

+ (Class)layerClass {
    return [CALayer class];
}

- (instancetype)init {
    return [self initWithFrame:CGRectZero];
}

- (instancetype)initWithFrame:(CGRect)frame {
    if (!(self = [super init])) return nil;
    auto &mine = state(self);
    mine.layer = [[[self class] layerClass] new];
    sim::state(mine.layer).view = self;
    [self setFrame:frame];
    [self setNeedsLayout];
    return self;
}

- (void)dealloc {
    auto *mine = &state(self);
    for (UIView *view : sim::subviews(self)) [view removeFromSuperview];
    // Last: losing a subview asks for layout.
    sim::forgetPendingLayout(self);
    [self setGestureRecognizers:nil];
    if (mine->layer) {
        [mine->layer removeFromSuperlayer];
        sim::state(mine->layer).view = nil;
        [mine->layer release];
    }
    [mine->tint release];
    delete mine;
    _viewState = nullptr;
    [super dealloc];
}

- (CALayer *)layer {
    return state(self).layer;
}

- (NSInteger)tag {
    return state(self).tag;
}
- (void)setTag:(NSInteger)tag {
    state(self).tag = tag;
}

- (BOOL)isUserInteractionEnabled {
    return state(self).interactive;
}
- (void)setUserInteractionEnabled:(BOOL)enabled {
    state(self).interactive = enabled;
}

- (UIResponder *)nextResponder {
    UIViewController *controller = state(self).controller;
    return controller ? static_cast<UIResponder *>(controller) : [self superview];
}

- (NSString *)description {
    CGRect frame = [self frame];
    return [NSString stringWithFormat:@"<%s tag %ld (%g %g; %g %g)>", object_getClassName(self),
                                      static_cast<long>([self tag]), frame.origin.x, frame.origin.y,
                                      frame.size.width, frame.size.height];
}

@end

@implementation UIView (Drawing)
- (void)appendDrawingsTo:(render::Node &)node {
}
@end

@implementation UIView (UIViewRendering)

- (CGFloat)alpha {
    return [[self layer] opacity];
}
- (void)setAlpha:(CGFloat)alpha {
    [[self layer] setOpacity:static_cast<float>(alpha)];
}

- (BOOL)isHidden {
    return [[self layer] isHidden];
}
- (void)setHidden:(BOOL)hidden {
    [[self layer] setHidden:hidden];
}

- (BOOL)isOpaque {
    return state(self).opaque;
}
- (void)setOpaque:(BOOL)opaque {
    state(self).opaque = opaque;
}

- (BOOL)clipsToBounds {
    return [[self layer] masksToBounds];
}
- (void)setClipsToBounds:(BOOL)clips {
    [[self layer] setMasksToBounds:clips];
}

- (UIColor *)backgroundColor {
    CGColorRef color = [[self layer] backgroundColor];
    return color ? [UIColor colorWithCGColor:color] : nil;
}
- (void)setBackgroundColor:(UIColor *)color {
    [[self layer] setBackgroundColor:[color CGColor]];
}

- (UIColor *)tintColor {
    for (UIView *view = self; view; view = [view superview])
        if (state(view).tint) return state(view).tint;
    return [UIColor colorWithRed:0 green:122 / 255.0 blue:1 alpha:1];
}
- (void)setTintColor:(UIColor *)color {
    auto &mine = state(self);
    sim::retainInto(mine.tint, color);
    [self tintColorDidChange];
}
- (void)tintColorDidChange {
    for (UIView *view : sim::subviews(self))
        if (!state(view).tint) [view tintColorDidChange];
}

- (UIViewContentMode)contentMode {
    return state(self).contentMode;
}
- (void)setContentMode:(UIViewContentMode)mode {
    state(self).contentMode = mode;
}

- (void)setNeedsDisplay {
}

@end

@implementation UIView (UIViewGestureRecognizers)

- (NSArray *)gestureRecognizers {
    auto &list = state(self).recognizers;
    return list.empty() ? nil : [NSArray arrayWithObjects:list.data() count:list.size()];
}
- (void)setGestureRecognizers:(NSArray *)recognizers {
    for (UIGestureRecognizer *recognizer in [self gestureRecognizers])
        [self removeGestureRecognizer:recognizer];
    for (UIGestureRecognizer *recognizer in recognizers) [self addGestureRecognizer:recognizer];
}
- (void)addGestureRecognizer:(UIGestureRecognizer *)recognizer {
    if (!recognizer || [recognizer view] == self) return;
    [recognizer retain];
    [[recognizer view] removeGestureRecognizer:recognizer];
    auto &list = state(self).recognizers;
    if (list.empty()) list.reserve(4);
    list.push_back(recognizer);
    sim::attach(recognizer, self);
}
- (void)removeGestureRecognizer:(UIGestureRecognizer *)recognizer {
    if (std::erase(state(self).recognizers, recognizer) == 0) return;
    sim::attach(recognizer, nil);
    [recognizer autorelease];
}

@end

@implementation UIView (UIViewAnimationWithBlocks)

+ (void)animateWithDuration:(NSTimeInterval)duration animations:(void (^)(void))animations {
    [self animateWithDuration:duration animations:animations completion:nil];
}

+ (void)animateWithDuration:(NSTimeInterval)duration
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL))completion {
    [self animateWithDuration:duration
                        delay:0
                      options:UIViewAnimationOptionCurveEaseInOut
                   animations:animations
                   completion:completion];
}

+ (void)animateWithDuration:(NSTimeInterval)duration
                      delay:(NSTimeInterval)delay
                    options:(UIViewAnimationOptions)options
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL))completion {
    constexpr sim::TimingCurve curves[] = {sim::TimingCurve::easeInOut(), sim::TimingCurve::easeIn(),
                                           sim::TimingCurve::easeOut(), sim::TimingCurve::linear()};
    constexpr UIViewAnimationOptions kCurveMask = 3;
    sim::Timing timing{.begin = sim::Clock::shared().now() + sim::fromSeconds(delay),
                       .duration = sim::fromSeconds(duration),
                       .repeatCount = options & UIViewAnimationOptionRepeat ? INFINITY : 1,
                       .autoreverses = (options & UIViewAnimationOptionAutoreverse) != 0,
                       .fill = sim::FillMode::backwards,
                       .curve = curves[options >> 16 & kCurveMask]};
    timing = sim::timingWithinOpenBlock(timing);
    bool touches = options & UIViewAnimationOptionAllowUserInteraction;
    sim::runAnimations(std::make_shared<sim::AnimationGroup>(timing, touches, completion), animations);
}

+ (void)performWithoutAnimation:(void (^)(void))actions {
    sim::runAnimations(nullptr, actions);
}

@end
