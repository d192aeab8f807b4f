#include "AnimationBlock.h"
#include "LayerState.h"

#include "CAAnimation+Further.h"
#include "CALayer+Further.h"

#include <algorithm>
#include <set>
#include <utility>

namespace sim {

namespace {

// Layers with animations, by number: never enumerated by address.
std::map<uint64_t, CALayer *> &animatedLayers() {
    static auto &layers = *new std::map<uint64_t, CALayer *>; // a process may exit in the middle of one
    return layers;
}

// Layers that were outside a window when they were given an animation.
std::set<uint64_t> &unattached() {
    static std::set<uint64_t> layers;
    return layers;
}

void tellDelegate(CAAnimation *animation, bool finished) {
    id delegate = [[[animation delegate] retain] autorelease];
    if ([delegate respondsToSelector:@selector(animationDidStop:finished:)])
        [delegate animationDidStop:animation finished:finished];
}

void forget(LayerAnimation &animation, bool finished) {
    Clock::shared().cancel(animation.task);
    if (animation.group) animation.group->remove(finished);
    if (!animation.over) tellDelegate(animation.object, finished);
    [animation.object autorelease];
}

void removeWhere(CALayer *layer, bool finished, auto &&matches) {
    auto &animations = state(layer).animations;
    std::vector<LayerAnimation> removed;
    for (auto &animation : animations)
        if (matches(animation)) removed.push_back(animation);
    std::erase_if(animations, matches);
    if (animations.empty()) animatedLayers().erase(state(layer).number);
    for (auto &animation : removed) forget(animation, finished);
}

void end(CALayer *layer, uint64_t serial) {
    for (auto &animation : state(layer).animations) {
        if (animation.serial != serial || animation.removedOnCompletion) continue;
        // Stays in effect as its fill mode says.
        animation.task = 0;
        animation.over = true;
        return tellDelegate([[animation.object retain] autorelease], true);
    }
    removeWhere(layer, true, [=](const LayerAnimation &animation) { return animation.serial == serial; });
}

// Whether animation blocks animate that key path of a view's own layer.
bool animatesWithViews(std::string_view keyPath) {
    constexpr std::string_view kAnimated[] = {"bounds", "position", "transform", "opacity",
                                              "backgroundColor"};
    return std::find(std::begin(kAnimated), std::end(kAnimated), keyPath) != std::end(kAnimated);
}

} // namespace

bool isHeldFromTouches(CALayer *layer) {
    const auto &animations = state(layer).animations;
    return std::any_of(animations.begin(), animations.end(), [](const LayerAnimation &animation) {
        return animation.group && !animation.group->allowsTouches();
    });
}

void addAnimation(CALayer *layer, LayerAnimation animation) {
    static uint64_t serial = 0;
    if (!animation.key.empty()) removeAnimations(layer, animation.key);
    animation.serial = ++serial;
    if (auto due = animation.timing.end()) {
        animation.task = Clock::shared().schedule(*due, Clock::Phase::animation,
                                                  [layer, serial = animation.serial] { end(layer, serial); });
    }
    if (animation.group) animation.group->add();
    animatedLayers()[state(layer).number] = layer;
    if (!isInWindow(layer)) unattached().insert(state(layer).number);
    state(layer).animations.push_back(std::move(animation));
}

void removeAnimations(CALayer *layer, const std::string &key) {
    removeWhere(layer, false, [&](const LayerAnimation &animation) { return animation.key == key; });
}

void removeAllAnimations(CALayer *layer) {
    removeWhere(layer, false, [](const LayerAnimation &) { return true; });
}

void cancelAnimations(CALayer *layer) {
    removeAllAnimations(layer);
    if (state(layer).mask) cancelAnimations(state(layer).mask);
    for (CALayer *sublayer : std::vector(state(layer).sublayers)) cancelAnimations(sublayer);
}

void commitAnimations() {
    for (uint64_t id : std::exchange(unattached(), {})) {
        auto found = animatedLayers().find(id);
        if (found != animatedLayers().end() && !isInWindow(found->second)) removeAllAnimations(found->second);
    }
}

LayerProperties presented(CALayer *layer) {
    LayerProperties result = state(layer).model;
    Nanos now = Clock::shared().now();
    for (const auto &animation : state(layer).animations) {
        auto progress = animation.timing.progress(now);
        if (!progress) continue;
        AnimatedValue own = valueAt(result, animation.keyPath);
        const auto &from = std::holds_alternative<std::monostate>(animation.from) ? own : animation.from;
        const auto &to = std::holds_alternative<std::monostate>(animation.to) ? own : animation.to;
        setValueAt(result, animation.keyPath, interpolate(from, to, *progress));
    }
    return result;
}

void changeProperty(CALayer *layer, const char *keyPath,
                    const std::function<void(LayerProperties &)> &change) {
    auto group = openAnimationGroup();
    if (group && state(layer).view && !animatesWithViews(keyPath)) group = nullptr;
    auto &model = state(layer).model;
    AnimatedValue before = group ? valueAt(model, keyPath) : AnimatedValue{};
    AnimatedValue shown = group ? valueAt(presented(layer), keyPath) : AnimatedValue{};
    change(model);
    if (!group || group->timing().duration <= 0 || !isInWindow(layer)) return;
    AnimatedValue after = valueAt(model, keyPath);
    if (sameValue(before, after)) return;
    addAnimation(layer, {.key = keyPath,
                         .keyPath = keyPath,
                         .from = shown,
                         .to = after,
                         .timing = group->timing(),
                         .group = group});
}

std::vector<std::string> unfinishedAnimations() {
    std::vector<std::string> result;
    for (const auto &[number, layer] : animatedLayers()) {
        for (const auto &animation : state(layer).animations) {
            if (!animation.task) continue;
            NSString *what =
                state(layer).view ? [static_cast<id>(state(layer).view) description] : [layer description];
            result.push_back("animation of " + animation.keyPath + " on " + [what UTF8String]);
        }
    }
    return result;
}

} // namespace sim
