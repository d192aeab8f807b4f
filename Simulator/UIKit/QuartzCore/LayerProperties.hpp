// What a layer looks like, as plain values: the model's copy, and the copy with the running animations
// applied.
#pragma once

#include "CATransform3D+Further.h"
#include "Render/DisplayList.hpp"
#include "UIKit/CoreGraphics/CGGeometry+Further.h"

#include <optional>
#include <string_view>
#include <variant>
#include <vector>

namespace sim {

struct LayerProperties {
    CGRect bounds = CGRectZero;
    CGPoint position = CGPointZero;
    CGPoint anchorPoint = {0.5, 0.5};
    CGFloat zPosition = 0;
    CATransform3D transform = CATransform3DIdentity;
    double opacity = 1;
    bool hidden = false;
    bool masksToBounds = false;
    CGFloat cornerRadius = 0;
    CGFloat borderWidth = 0;
    render::Rgba borderColor = {0, 0, 0, 1};
    std::optional<render::Paint> background;

    render::Rgba shadowColor = {0, 0, 0, 1};
    double shadowOpacity = 0;
    CGSize shadowOffset = {0, -3};
    CGFloat shadowRadius = 3;
    std::optional<render::Path> shadowPath;

    // Gradient layers only.
    std::vector<render::Rgba> gradientColors;
    std::vector<double> gradientLocations;
    CGPoint gradientStart = {0.5, 0};
    CGPoint gradientEnd = {0.5, 1};

    // Shape layers only.
    std::optional<render::Path> path;
    std::optional<render::Rgba> fill, stroke;
    CGFloat lineWidth = 1;
    CGFloat strokeStart = 0, strokeEnd = 1;
    bool roundCaps = false;

    // The smallest upright rectangle, in the superlayer's coordinates, around the transformed bounds.
    CGRect frame() const;
    // Moves and sizes the layer so that frame() becomes `frame`, keeping anchor point and transform.
    void setFrame(CGRect frame);
    // What that makes of position and bounds.
    struct Place {
        CGPoint position;
        CGRect bounds;
    };
    Place placeIn(CGRect frame) const;
    // From this layer's coordinates to its superlayer's.
    CGAffineTransform toSuperlayer() const;
};

// A value of an animation. Angles are in radians.
using AnimatedValue = std::variant<std::monostate, double, CGPoint, CGSize, CGRect, CGAffineTransform,
                                   render::Rgba, std::vector<double>>;

// The value under a key path ("position", "bounds.size", "transform.rotation.z", "locations" …); empty for
// a key path that cannot be animated.
AnimatedValue valueAt(const LayerProperties &properties, std::string_view keyPath);
// Puts a value there; one of another kind than the key path's is ignored.
void setValueAt(LayerProperties &properties, std::string_view keyPath, const AnimatedValue &value);

// `from` at fraction 0, `to` at 1; transforms are taken apart, so that turning keeps the size. Values of
// different kinds give `to`.
AnimatedValue interpolate(const AnimatedValue &from, const AnimatedValue &to, double fraction);

bool sameValue(const AnimatedValue &a, const AnimatedValue &b);

} // namespace sim
