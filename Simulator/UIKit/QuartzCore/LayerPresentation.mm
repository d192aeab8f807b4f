#include "LayerState.h"

#include "CALayer+Further.h"

namespace sim {

namespace {

// Retained; nil for nothing.
SimCGColor *makeColor(const std::optional<render::Paint> &paint) {
    if (!paint) return nil;
    SimCGColor *color = [SimCGColor new];
    color->paint = *paint;
    return color;
}

// What a subclass may have put there on its own goes.
template <typename Object>
void put(Object *&slot, Object *retained) {
    [slot release];
    slot = retained;
}

} // namespace

void copyPresentation(CALayer *layer, CALayer *copy) {
    const auto &own = state(layer);
    auto &shown = state(copy);
    shown.model = presented(layer);
    put(shown.background, makeColor(shown.model.background));
    if (own.border) put(shown.border, makeColor(shown.model.borderColor));
    if (own.shadow) put(shown.shadow, makeColor(shown.model.shadowColor));
    put(shown.shadowPath, [own.shadowPath retain]);
    [copy setContents:own.contents];
    [copy setContentsScale:own.contentsScale];
    [copy setName:own.name];
    for (const auto &[key, value] : own.values) [copy setValue:value forUndefinedKey:key];
}

} // namespace sim
