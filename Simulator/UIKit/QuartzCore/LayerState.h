// The simulator's side of CALayer.
#pragma once

#import <Foundation/Foundation.h>

#include "LayerProperties.hpp"
#include "Timing.hpp"
#include "UIKit/CoreGraphics/CGObjects.h"

#include <QuartzCore/QuartzCore.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

@class UIView;

namespace sim {

class AnimationGroup;

struct LayerAnimation {
    std::string key;
    std::string keyPath;
    AnimatedValue from, to; // an empty end stands for the layer's own value
    Timing timing;
    bool removedOnCompletion = true;
    bool over = false;                     // has come to its end, but stays in effect
    uint64_t serial = 0;                   // in order of addition
    std::shared_ptr<AnimationGroup> group; // of an animation block; none for an explicit animation
    CAAnimation *object = nil;             // retained; explicit animations only
    Clock::TaskId task = 0;
};

struct LayerState {
    LayerProperties model;
    uint64_t number = 0; // unique in the process
    CALayer *superlayer = nil;
    std::vector<CALayer *> sublayers; // retained, back to front
    UIView *view = nil;               // not retained
    CALayer *mask = nil;              // retained
    CALayer *masked = nil;            // the layer that this one masks; not retained
    id contents = nil;                // retained
    CGFloat contentsScale = 1;
    NSString *name = nil;
    SimCGColor *background = nil, *border = nil, *shadow = nil; // retained
    SimCGPath *shadowPath = nil;                                // retained
    std::vector<std::pair<NSString *, id>> values;              // retained; under keys that are no property
    std::vector<LayerAnimation> animations;
};

LayerState &state(CALayer *layer);

// The model with the animations of this moment applied.
LayerProperties presented(CALayer *layer);

// Gives a fresh layer what `layer` shows at this moment, its name and its values.
void copyPresentation(CALayer *layer, CALayer *copy);

// Changes the model through `change`, and animates the key path when an animation block is open and the layer
// is in a window. Every setter of an animatable property goes through here. Of a view's layer, blocks animate
// place, size, transform, opacity and background; corners, borders and shadows change at once.
void changeProperty(CALayer *layer, const char *keyPath,
                    const std::function<void(LayerProperties &)> &change);

// Whether the layer is in the tree of a window.
bool isInWindow(CALayer *layer);
// Whether a block moves the layer whose views are to take no touches meanwhile, from its start (not the end
// of its delay) to its end.
bool isHeldFromTouches(CALayer *layer);
// Starts an animation; one that runs under the same (non-empty) key ends. Unfinished ones hear that they were
// cut short, here and in the functions below.
void addAnimation(CALayer *layer, LayerAnimation animation);
// The same for an animation object, of which a copy is kept.
void addExplicitAnimation(CALayer *layer, CAAnimation *animation, const std::string &key);
void removeAnimations(CALayer *layer, const std::string &key);
void removeAllAnimations(CALayer *layer);
// Those of the layer and of everything below it, as when a view leaves its window.
void cancelAnimations(CALayer *layer);

// At the end of each run-loop turn: layers that are in no window by then lose their animations.
void commitAnimations();

// A sentence for each animation that will end by itself and has not yet.
std::vector<std::string> unfinishedAnimations();

} // namespace sim
