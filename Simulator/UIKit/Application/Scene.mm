#include "ApplicationState.h"

#include "Runtime/Process/Device.hpp"
#include "UIKit/CoreGraphics/CGObjects.h"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"

#include <algorithm>

namespace {

using sim::LayerProperties;
using sim::state;
using sim::toRender;

std::vector<CALayer *> drawnSublayers(CALayer *layer) {
    auto layers = state(layer).sublayers;
    std::stable_sort(layers.begin(), layers.end(),
                     [](CALayer *a, CALayer *b) { return [a zPosition] < [b zPosition]; });
    return layers;
}

render::Gradient gradient(const LayerProperties &p) {
    render::Gradient result{p.gradientColors, p.gradientLocations, toRender(p.gradientStart),
                            toRender(p.gradientEnd)};
    if (result.locations.size() == result.colors.size()) return result;
    result.locations.clear();
    for (size_t i = 0; i < result.colors.size(); ++i)
        result.locations.push_back(result.colors.size() > 1 ? double(i) / double(result.colors.size() - 1)
                                                            : 0);
    return result;
}

render::Node node(CALayer *layer) {
    const auto &own = state(layer);
    LayerProperties p = sim::presented(layer);
    render::Node result;
    result.id = own.number;
    result.transform = toRender(p.toSuperlayer());
    result.bounds = toRender(p.bounds);
    result.opacity = p.opacity;
    result.cornerRadius = p.cornerRadius;
    result.clips = p.masksToBounds;
    if (p.shadowOpacity > 0)
        result.shadow = {p.shadowColor, p.shadowOpacity, p.shadowRadius, toRender(p.shadowOffset),
                         p.shadowPath};
    result.background = p.background;
    if (p.gradientColors.size() > 0) result.gradient = gradient(p);
    result.borderWidth = p.borderWidth;
    result.borderColor = p.borderColor;
    if ([own.contents isKindOfClass:[SimCGImage class]])
        result.drawings.push_back(render::Image{.bitmap = static_cast<SimCGImage *>(own.contents)->bitmap,
                                                .rect = result.bounds,
                                                .caps = {},
                                                .tint = {}});
    if (p.path)
        result.drawings.push_back(render::Shape{.path = *p.path,
                                                .fill = p.fill,
                                                .stroke = p.stroke,
                                                .strokeWidth = p.lineWidth,
                                                .strokeStart = p.strokeStart,
                                                .strokeEnd = p.strokeEnd,
                                                .roundCaps = p.roundCaps});
    if (own.view) [own.view appendDrawingsTo:result];
    for (CALayer *sublayer : drawnSublayers(layer))
        if (!state(sublayer).model.hidden) result.children.push_back(node(sublayer));
    if (own.mask) result.mask = std::make_shared<render::Node>(node(own.mask));
    return result;
}

} // namespace

namespace sim {

render::Scene currentScene() {
    CGSize size = interfaceSize();
    render::Scene scene{.size = {size.width, size.height}, .scale = device().scale, .roots = {}};
    for (UIWindow *window : displayedWindows()) {
        scene.roots.push_back(node([window layer]));
        CGAffineTransform own = presented([window layer]).toSuperlayer();
        scene.roots.back().transform = toRender(CGAffineTransformConcat(own, uprightTransform()));
    }
    return scene;
}

} // namespace sim
