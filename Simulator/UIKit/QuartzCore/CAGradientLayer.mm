#include "LayerState.h"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"

using sim::changeProperty;
using sim::LayerProperties;

namespace {

struct GradientState {
    NSArray *colors = nil, *locations = nil;
};

GradientState &gradient(CAGradientLayer *layer) {
    return sim::lazyState<GradientState>(layer->_gradientState);
}

void replaceCopied(NSArray *&slot, NSArray *value) { sim::copyInto(slot, value); }

} // namespace

@implementation CAGradientLayer

- (void)dealloc {
    [gradient(self).colors release];
    [gradient(self).locations release];
    delete &gradient(self);
    [super dealloc];
}

- (id)presentationLayer {
    CAGradientLayer *copy = [super presentationLayer];
    replaceCopied(gradient(copy).colors, [self colors]);
    if (![self locations]) return copy;
    NSMutableArray *locations = [NSMutableArray array];
    for (double location : sim::state(copy).model.gradientLocations)
        [locations addObject:[NSNumber numberWithDouble:location]];
    replaceCopied(gradient(copy).locations, locations);
    return copy;
}

- (NSArray *)colors {
    return gradient(self).colors;
}
- (void)setColors:(NSArray *)colors {
    replaceCopied(gradient(self).colors, colors);
    auto &flat = sim::state(self).model.gradientColors;
    flat.clear();
    for (SimCGColor *color in colors) flat.push_back(sim::flatColor(color->paint));
}

- (NSArray *)locations {
    return gradient(self).locations;
}
- (void)setLocations:(NSArray *)locations {
    replaceCopied(gradient(self).locations, locations);
    std::vector<double> numbers;
    for (NSNumber *location in locations) numbers.push_back([location doubleValue]);
    changeProperty(self, "locations", [&](LayerProperties &model) { model.gradientLocations = numbers; });
}

- (CGPoint)startPoint {
    return sim::state(self).model.gradientStart;
}
- (void)setStartPoint:(CGPoint)point {
    changeProperty(self, "startPoint", [&](LayerProperties &model) { model.gradientStart = point; });
}

- (CGPoint)endPoint {
    return sim::state(self).model.gradientEnd;
}
- (void)setEndPoint:(CGPoint)point {
    changeProperty(self, "endPoint", [&](LayerProperties &model) { model.gradientEnd = point; });
}

@end
