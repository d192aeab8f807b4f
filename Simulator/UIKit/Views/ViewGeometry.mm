#include "ViewState.h"

#include "UIKit/UIKit+Further.h"
#include "UIView+Further.h"

#include <UIKit/UIWindow.h>

using sim::state;

namespace {

// From the view's own coordinates to its window's (to the topmost view's, outside a window).
CGAffineTransform toRoot(UIView *view) {
    CGAffineTransform result = CGAffineTransformIdentity;
    for (; view && state(view).superview; view = state(view).superview)
        result = CGAffineTransformConcat(result, state([view layer]).model.toSuperlayer());
    return result;
}

CGAffineTransform between(UIView *from, UIView *to) {
    return CGAffineTransformConcat(toRoot(from), CGAffineTransformInvert(toRoot(to)));
}

// New origin and length along one axis of a subview whose superview grew by `growth`. `margins` and `size`
// say which of near margin, length and far margin give way.
void stretch(CGFloat &origin, CGFloat &length, CGFloat superlength, CGFloat growth, bool near, bool size,
             bool far) {
    int flexible = near + size + far;
    if (!flexible || growth == 0) return;
    CGFloat oldSuperlength = superlength - growth;
    CGFloat parts[] = {near ? origin : 0, size ? length : 0, far ? oldSuperlength - origin - length : 0};
    CGFloat total = parts[0] + parts[1] + parts[2];
    // In proportion to what each had; evenly when none had any.
    auto share = [&](bool takes, CGFloat part) {
        return takes ? (total > 0 ? growth * part / total : growth / flexible) : 0;
    };
    origin += share(near, parts[0]);
    length += share(size, parts[1]);
}

void autoresize(UIView *superview, CGSize before) {
    if (!state(superview).autoresizesSubviews) return;
    CGSize after = [superview bounds].size;
    for (UIView *view : sim::subviews(superview)) {
        UIViewAutoresizing mask = state(view).autoresizing;
        if (mask == UIViewAutoresizingNone) continue;
        CGRect frame = [view frame];
        stretch(frame.origin.x, frame.size.width, after.width, after.width - before.width,
                mask & UIViewAutoresizingFlexibleLeftMargin, mask & UIViewAutoresizingFlexibleWidth,
                mask & UIViewAutoresizingFlexibleRightMargin);
        stretch(frame.origin.y, frame.size.height, after.height, after.height - before.height,
                mask & UIViewAutoresizingFlexibleTopMargin, mask & UIViewAutoresizingFlexibleHeight,
                mask & UIViewAutoresizingFlexibleBottomMargin);
        [view setFrame:frame];
    }
}

} // namespace

@implementation UIView (UIViewGeometry)

- (CGRect)frame {
    return [[self layer] frame];
}
- (void)setFrame:(CGRect)frame {
    CGSize before = [self bounds].size;
    [[self layer] setFrame:frame];
    if (!CGSizeEqualToSize(before, [self bounds].size)) autoresize(self, before);
}

- (CGRect)bounds {
    return [[self layer] bounds];
}
- (void)setBounds:(CGRect)bounds {
    CGSize before = [self bounds].size;
    [[self layer] setBounds:bounds];
    if (!CGSizeEqualToSize(before, bounds.size)) autoresize(self, before);
}

- (CGPoint)center {
    return [[self layer] position];
}
- (void)setCenter:(CGPoint)center {
    [[self layer] setPosition:center];
}

- (CGAffineTransform)transform {
    return [[self layer] affineTransform];
}
- (void)setTransform:(CGAffineTransform)transform {
    [[self layer] setAffineTransform:transform];
}

- (CGFloat)contentScaleFactor {
    return [[self layer] contentsScale];
}
- (void)setContentScaleFactor:(CGFloat)factor {
    [[self layer] setContentsScale:factor];
}

- (BOOL)isMultipleTouchEnabled {
    return state(self).multipleTouch;
}
- (void)setMultipleTouchEnabled:(BOOL)enabled {
    state(self).multipleTouch = enabled;
}

- (BOOL)isExclusiveTouch {
    return state(self).exclusiveTouch;
}
- (void)setExclusiveTouch:(BOOL)exclusive {
    state(self).exclusiveTouch = exclusive;
}

- (UIViewAutoresizing)autoresizingMask {
    return state(self).autoresizing;
}
- (void)setAutoresizingMask:(UIViewAutoresizing)mask {
    state(self).autoresizing = mask;
}

- (BOOL)autoresizesSubviews {
    return state(self).autoresizesSubviews;
}
- (void)setAutoresizesSubviews:(BOOL)autoresizes {
    state(self).autoresizesSubviews = autoresizes;
}

- (CGPoint)convertPoint:(CGPoint)point toView:(UIView *)view {
    return CGPointApplyAffineTransform(point, between(self, view));
}
- (CGPoint)convertPoint:(CGPoint)point fromView:(UIView *)view {
    return CGPointApplyAffineTransform(point, between(view, self));
}
- (CGRect)convertRect:(CGRect)rect toView:(UIView *)view {
    return CGRectApplyAffineTransform(rect, between(self, view));
}
- (CGRect)convertRect:(CGRect)rect fromView:(UIView *)view {
    return CGRectApplyAffineTransform(rect, between(view, self));
}

// Views that are hidden, see-through, switched off or moved by a block take no touch, and neither does what
// they hold. Where a view is going counts, not where it is seen.
- (UIView *)hitTest:(CGPoint)point withEvent:(UIEvent *)event {
    constexpr CGFloat kLeastAlpha = 0.01;
    if ([self isHidden] || ![self isUserInteractionEnabled] || [self alpha] < kLeastAlpha) return nil;
    if (sim::isHeldFromTouches([self layer]) || ![self pointInside:point withEvent:event]) return nil;
    auto views = sim::subviews(self);
    for (auto view = views.rbegin(); view != views.rend(); ++view) {
        CGAffineTransform fromSuperview = CGAffineTransformInvert(state([*view layer]).model.toSuperlayer());
        UIView *hit = [*view hitTest:CGPointApplyAffineTransform(point, fromSuperview) withEvent:event];
        if (hit) return hit;
    }
    return self;
}

- (BOOL)pointInside:(CGPoint)point withEvent:(UIEvent *)event {
    return CGRectContainsPoint([self bounds], point);
}

- (CGSize)sizeThatFits:(CGSize)size {
    return [self bounds].size;
}

- (void)sizeToFit {
    CGRect frame = [self frame];
    frame.size = [self sizeThatFits:[self bounds].size];
    [self setFrame:frame];
}

@end
