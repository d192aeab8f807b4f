#include "LayerState.h"

#include "CALayer+Further.h"
#include "CATransform3D+Further.h"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "Runtime/Process/Events.hpp"
#include "UIKit/Views/UIView+Further.h"

#include <UIKit/UIView.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>

using sim::changeProperty;
using sim::LayerProperties;
using sim::state;

namespace sim {

LayerState &state(CALayer *layer) {
    static uint64_t last = 0;
    return lazyState<LayerState>(layer->_layerState, [] {
        auto *fresh = new LayerState;
        fresh->number = ++last;
        return fresh;
    });
}

bool isInWindow(CALayer *layer) {
    for (; layer; layer = state(layer).superlayer ? state(layer).superlayer : state(layer).masked)
        if (state(layer).view) return [state(layer).view window] != nil;
    return false;
}

} // namespace sim

namespace {

template <typename Object>
void replaceRetained(Object *&slot, Object *value) {
    sim::retainInto(slot, value);
}

// A place or size that is not a number ends the process, unless somebody catches it.
void requireNumbers(const char *property, std::initializer_list<CGFloat> numbers) {
    if (std::any_of(numbers.begin(), numbers.end(), [](CGFloat number) { return std::isnan(number); }))
        [NSException raise:@"CALayerInvalidGeometry" format:@"CALayer %s contains NaN", property];
}

void detach(CALayer *layer) {
    CALayer *superlayer = state(layer).superlayer;
    if (!superlayer) return;
    sim::cancelAnimations(layer);
    std::erase(state(superlayer).sublayers, layer);
    state(layer).superlayer = nil;
    [layer autorelease];
}

} // namespace

@implementation CALayer

+ (instancetype)layer {
    return [[self new] autorelease];
}

- (void)dealloc {
    auto *mine = &state(self);
    sim::cancelAnimations(self);
    for (CALayer *sublayer : mine->sublayers) {
        state(sublayer).superlayer = nil;
        [sublayer release];
    }
    if (mine->mask) state(mine->mask).masked = nil;
    [mine->mask release];
    [mine->contents release];
    [mine->name release];
    [mine->background release];
    [mine->border release];
    [mine->shadow release];
    [mine->shadowPath release];
    for (auto &[key, value] : mine->values) {
        [key release];
        [value release];
    }
    delete mine;
    [super dealloc];
}

- (CGRect)frame {
    return state(self).model.frame();
}
- (void)setFrame:(CGRect)frame {
    auto placed = state(self).model.placeIn(frame);
    // Position first: what animates along with the bounds reads the layer's new place.
    [self setPosition:placed.position];
    [self setBounds:placed.bounds];
}

- (CGRect)bounds {
    return state(self).model.bounds;
}
- (void)setBounds:(CGRect)bounds {
    requireNumbers("bounds", {bounds.origin.x, bounds.origin.y, bounds.size.width, bounds.size.height});
    CGSize before = state(self).model.bounds.size;
    changeProperty(self, "bounds", [&](LayerProperties &model) { model.bounds = bounds; });
    if (!CGSizeEqualToSize(before, bounds.size)) [self setNeedsLayout];
}

- (CGPoint)position {
    return state(self).model.position;
}
- (void)setPosition:(CGPoint)position {
    requireNumbers("position", {position.x, position.y});
    changeProperty(self, "position", [&](LayerProperties &model) { model.position = position; });
}

- (CGPoint)anchorPoint {
    return state(self).model.anchorPoint;
}
- (void)setAnchorPoint:(CGPoint)anchorPoint {
    changeProperty(self, "anchorPoint", [&](LayerProperties &model) { model.anchorPoint = anchorPoint; });
}

- (CGFloat)zPosition {
    return state(self).model.zPosition;
}
- (void)setZPosition:(CGFloat)zPosition {
    changeProperty(self, "zPosition", [&](LayerProperties &model) { model.zPosition = zPosition; });
}

- (CATransform3D)transform {
    return state(self).model.transform;
}
- (void)setTransform:(CATransform3D)transform {
    changeProperty(self, "transform", [&](LayerProperties &model) { model.transform = transform; });
}
- (CGAffineTransform)affineTransform {
    return CATransform3DGetAffineTransform([self transform]);
}
- (void)setAffineTransform:(CGAffineTransform)transform {
    [self setTransform:CATransform3DMakeAffineTransform(transform)];
}

- (float)opacity {
    return static_cast<float>(state(self).model.opacity);
}
- (void)setOpacity:(float)opacity {
    changeProperty(self, "opacity",
                   [&](LayerProperties &model) { model.opacity = std::clamp<double>(opacity, 0, 1); });
}

- (BOOL)isHidden {
    return state(self).model.hidden;
}
- (void)setHidden:(BOOL)hidden {
    state(self).model.hidden = hidden;
}

- (BOOL)masksToBounds {
    return state(self).model.masksToBounds;
}
- (void)setMasksToBounds:(BOOL)masks {
    state(self).model.masksToBounds = masks;
}

- (CGFloat)cornerRadius {
    return state(self).model.cornerRadius;
}
- (void)setCornerRadius:(CGFloat)radius {
    changeProperty(self, "cornerRadius", [&](LayerProperties &model) { model.cornerRadius = radius; });
}

- (CGFloat)borderWidth {
    return state(self).model.borderWidth;
}
- (void)setBorderWidth:(CGFloat)width {
    changeProperty(self, "borderWidth", [&](LayerProperties &model) { model.borderWidth = width; });
}

- (CGColorRef)borderColor {
    return sim::reference(state(self).border);
}
- (void)setBorderColor:(CGColorRef)color {
    replaceRetained(state(self).border, sim::object(color));
    render::Rgba flat = color ? sim::flatColor(sim::object(color)->paint) : render::Rgba{};
    changeProperty(self, "borderColor", [&](LayerProperties &model) { model.borderColor = flat; });
}

- (CGColorRef)backgroundColor {
    return sim::reference(state(self).background);
}
- (void)setBackgroundColor:(CGColorRef)color {
    replaceRetained(state(self).background, sim::object(color));
    changeProperty(self, "backgroundColor", [&](LayerProperties &model) {
        model.background = color ? std::optional(sim::object(color)->paint) : std::nullopt;
    });
}

- (CGColorRef)shadowColor {
    return sim::reference(state(self).shadow);
}
- (void)setShadowColor:(CGColorRef)color {
    replaceRetained(state(self).shadow, sim::object(color));
    render::Rgba flat = color ? sim::flatColor(sim::object(color)->paint) : render::Rgba{};
    changeProperty(self, "shadowColor", [&](LayerProperties &model) { model.shadowColor = flat; });
}

- (float)shadowOpacity {
    return static_cast<float>(state(self).model.shadowOpacity);
}
- (void)setShadowOpacity:(float)opacity {
    changeProperty(self, "shadowOpacity", [&](LayerProperties &model) { model.shadowOpacity = opacity; });
}

- (CGSize)shadowOffset {
    return state(self).model.shadowOffset;
}
- (void)setShadowOffset:(CGSize)offset {
    changeProperty(self, "shadowOffset", [&](LayerProperties &model) { model.shadowOffset = offset; });
}

- (CGFloat)shadowRadius {
    return state(self).model.shadowRadius;
}
- (void)setShadowRadius:(CGFloat)radius {
    changeProperty(self, "shadowRadius", [&](LayerProperties &model) { model.shadowRadius = radius; });
}

- (CGPathRef)shadowPath {
    return sim::reference(state(self).shadowPath);
}
- (void)setShadowPath:(CGPathRef)path {
    auto &mine = state(self);
    replaceRetained(mine.shadowPath, sim::object(path));
    mine.model.shadowPath = path ? std::optional(sim::object(path)->path) : std::nullopt;
}

- (id)contents {
    return state(self).contents;
}
- (void)setContents:(id)contents {
    sim::retainInto(state(self).contents, contents);
}

- (CGFloat)contentsScale {
    return state(self).contentsScale;
}
- (void)setContentsScale:(CGFloat)scale {
    state(self).contentsScale = scale;
}

- (NSString *)name {
    return state(self).name;
}
- (void)setName:(NSString *)name {
    sim::copyInto(state(self).name, name);
}

- (CALayer *)mask {
    return state(self).mask;
}
- (void)setMask:(CALayer *)mask {
    if (mask == state(self).mask) return;
    [mask removeFromSuperlayer];
    if (CALayer *old = state(self).mask) {
        sim::cancelAnimations(old);
        state(old).masked = nil;
    }
    replaceRetained(state(self).mask, mask);
    if (mask) state(mask).masked = self;
}

- (CALayer *)superlayer {
    return state(self).superlayer;
}

- (NSArray *)sublayers {
    auto &layers = state(self).sublayers;
    return layers.empty() ? nil : [NSArray arrayWithObjects:layers.data() count:layers.size()];
}
- (void)setSublayers:(NSArray *)layers {
    for (CALayer *layer in [self sublayers]) [layer removeFromSuperlayer];
    for (CALayer *layer in layers) [self addSublayer:layer];
}

- (void)addSublayer:(CALayer *)layer {
    if (state(layer).superlayer == self) {
        auto &layers = state(self).sublayers;
        layers.erase(std::find(layers.begin(), layers.end(), layer));
        layers.push_back(layer);
        return;
    }
    [self insertSublayer:layer atIndex:static_cast<unsigned>(state(self).sublayers.size())];
}

- (void)insertSublayer:(CALayer *)layer atIndex:(unsigned)index {
    if (!layer) return;
    [layer retain];
    detach(layer);
    auto &layers = state(self).sublayers;
    layers.insert(layers.begin() + std::min<size_t>(index, layers.size()), layer);
    state(layer).superlayer = self;
}

- (void)removeFromSuperlayer {
    detach(self);
}

- (id)presentationLayer {
    CALayer *copy = [[[[self class] alloc] init] autorelease];
    sim::copyPresentation(self, copy);
    return copy;
}

- (void)addAnimation:(CAAnimation *)animation forKey:(NSString *)key {
    sim::addExplicitAnimation(self, animation, key ? [key UTF8String] : "");
}
- (CAAnimation *)animationForKey:(NSString *)key {
    for (auto &animation : state(self).animations)
        if (key && animation.key == [key UTF8String]) return animation.object;
    return nil;
}
- (NSArray *)animationKeys {
    NSMutableArray *keys = [NSMutableArray array];
    for (auto &animation : state(self).animations)
        if (!animation.key.empty()) [keys addObject:[NSString stringWithUTF8String:animation.key.c_str()]];
    return [keys count] ? keys : nil;
}
- (void)removeAnimationForKey:(NSString *)key {
    if (key) sim::removeAnimations(self, [key UTF8String]);
}
- (void)removeAllAnimations {
    sim::removeAllAnimations(self);
}

- (void)setNeedsLayout {
    [state(self).view setNeedsLayout];
}
- (void)layoutIfNeeded {
    [state(self).view layoutIfNeeded];
}
- (void)setNeedsDisplay {
    [state(self).view setNeedsDisplay];
}

@end
