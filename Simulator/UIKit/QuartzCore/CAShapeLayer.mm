#include "CAShapeLayer+Further.h"
#include "LayerState.h"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"

#include <QuartzCore/CAShapeLayer.h>

#include <algorithm>

using sim::changeProperty;
using sim::LayerProperties;

namespace {

// What was handed in, retained; the drawing is made of the model's values.
struct ShapeState {
    SimCGPath *path = nil;
    SimCGColor *fill = nil, *stroke = nil;
    NSString *cap = nil;
};

ShapeState &shape(CAShapeLayer *layer) {
    return sim::lazyState<ShapeState>(layer->_shapeState, [layer] {
        sim::state(layer).model.fill = render::Rgba{0, 0, 0, 1};
        return new ShapeState{.cap = @"butt"};
    });
}

std::optional<render::Rgba> flat(CGColorRef color) {
    return color ? std::optional(sim::flatColor(sim::object(color)->paint)) : std::nullopt;
}

} // namespace

@implementation CAShapeLayer

- (void)dealloc {
    auto &mine = shape(self);
    [mine.path release];
    [mine.fill release];
    [mine.stroke release];
    [mine.cap release];
    delete &mine;
    [super dealloc];
}

- (CGPathRef)path {
    return sim::reference(shape(self).path);
}
- (void)setPath:(CGPathRef)path {
    sim::retainInto(shape(self).path, sim::object(path));
    sim::state(self).model.path = path ? std::optional(sim::object(path)->path) : std::nullopt;
}

- (CGColorRef)fillColor {
    return sim::reference(shape(self).fill);
}
- (void)setFillColor:(CGColorRef)color {
    sim::retainInto(shape(self).fill, sim::object(color));
    sim::state(self).model.fill = flat(color);
}

- (CGColorRef)strokeColor {
    return sim::reference(shape(self).stroke);
}
- (void)setStrokeColor:(CGColorRef)color {
    sim::retainInto(shape(self).stroke, sim::object(color));
    sim::state(self).model.stroke = flat(color);
}

- (CGFloat)lineWidth {
    return sim::state(self).model.lineWidth;
}
- (void)setLineWidth:(CGFloat)width {
    changeProperty(self, "lineWidth", [&](LayerProperties &model) { model.lineWidth = width; });
}

- (CGFloat)strokeStart {
    return sim::state(self).model.strokeStart;
}
- (void)setStrokeStart:(CGFloat)start {
    changeProperty(self, "strokeStart",
                   [&](LayerProperties &model) { model.strokeStart = std::clamp<CGFloat>(start, 0, 1); });
}

- (CGFloat)strokeEnd {
    return sim::state(self).model.strokeEnd;
}
- (void)setStrokeEnd:(CGFloat)end {
    changeProperty(self, "strokeEnd",
                   [&](LayerProperties &model) { model.strokeEnd = std::clamp<CGFloat>(end, 0, 1); });
}

- (NSString *)lineCap {
    return shape(self).cap;
}
- (void)setLineCap:(NSString *)cap {
    sim::copyInto(shape(self).cap, cap);
    sim::state(self).model.roundCaps = [cap isEqual:@"round"];
}

@end
