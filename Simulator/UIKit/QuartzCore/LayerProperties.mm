#include "LayerProperties.hpp"

#include "CATransform3D+Further.h"
#include "UIKit/CoreGraphics/CGGeometry+Further.h"

#include <algorithm>
#include <cmath>

namespace sim {

namespace {

// A plane transform as scale, shear, turn and shift, in this order.
struct Parts {
    double scaleX, scaleY, shear, angle, tx, ty;
};

Parts takeApart(const CGAffineTransform &t) {
    double scaleX = std::hypot(t.a, t.b);
    double angle = scaleX ? std::atan2(t.b, t.a) : std::atan2(-t.c, t.d);
    double cosine = std::cos(angle), sine = std::sin(angle);
    return {scaleX, t.d * cosine - t.c * sine, t.c * cosine + t.d * sine, angle, t.tx, t.ty};
}

CGAffineTransform putTogether(const Parts &p) {
    double cosine = std::cos(p.angle), sine = std::sin(p.angle);
    return {p.scaleX * cosine,
            p.scaleX * sine,
            p.shear * cosine - p.scaleY * sine,
            p.shear * sine + p.scaleY * cosine,
            p.tx,
            p.ty};
}

double mix(double from, double to, double fraction) { return from + (to - from) * fraction; }
CGPoint mix(CGPoint from, CGPoint to, double f) { return {mix(from.x, to.x, f), mix(from.y, to.y, f)}; }
CGSize mix(CGSize from, CGSize to, double f) {
    return {mix(from.width, to.width, f), mix(from.height, to.height, f)};
}
CGRect mix(CGRect from, CGRect to, double f) {
    return {mix(from.origin, to.origin, f), mix(from.size, to.size, f)};
}
render::Rgba mix(const render::Rgba &from, const render::Rgba &to, double f) {
    // A clear end takes the other's colour, so that fading does not darken.
    render::Rgba a = from.alpha == 0 ? to : from, b = to.alpha == 0 ? from : to;
    return {mix(a.red, b.red, f), mix(a.green, b.green, f), mix(a.blue, b.blue, f),
            mix(from.alpha, to.alpha, f)};
}
std::vector<double> mix(const std::vector<double> &from, const std::vector<double> &to, double f) {
    std::vector<double> result = to;
    for (size_t i = 0; i < std::min(from.size(), to.size()); ++i) result[i] = mix(from[i], to[i], f);
    return result;
}
CGAffineTransform mix(const CGAffineTransform &from, const CGAffineTransform &to, double f) {
    Parts a = takeApart(from), b = takeApart(to);
    // The shorter way round.
    double turn = std::remainder(b.angle - a.angle, 2 * M_PI);
    return putTogether({mix(a.scaleX, b.scaleX, f), mix(a.scaleY, b.scaleY, f), mix(a.shear, b.shear, f),
                        a.angle + turn * f, mix(a.tx, b.tx, f), mix(a.ty, b.ty, f)});
}
std::monostate mix(std::monostate, std::monostate, double) { return {}; }

CGAffineTransform plane(const LayerProperties &p) { return CATransform3DGetAffineTransform(p.transform); }

struct Accessor {
    std::string_view keyPath;
    AnimatedValue (*get)(const LayerProperties &);
    void (*set)(LayerProperties &, const AnimatedValue &);
};

template <auto Member, typename T>
Accessor member(std::string_view keyPath) {
    return {keyPath, [](const LayerProperties &p) -> AnimatedValue { return T(p.*Member); },
            [](LayerProperties &p, const AnimatedValue &v) { p.*Member = std::get<T>(v); }};
}

const Accessor accessors[] = {
    member<&LayerProperties::bounds, CGRect>("bounds"),
    member<&LayerProperties::position, CGPoint>("position"),
    member<&LayerProperties::anchorPoint, CGPoint>("anchorPoint"),
    member<&LayerProperties::zPosition, double>("zPosition"),
    member<&LayerProperties::opacity, double>("opacity"),
    member<&LayerProperties::cornerRadius, double>("cornerRadius"),
    member<&LayerProperties::borderWidth, double>("borderWidth"),
    member<&LayerProperties::borderColor, render::Rgba>("borderColor"),
    member<&LayerProperties::shadowColor, render::Rgba>("shadowColor"),
    member<&LayerProperties::shadowOpacity, double>("shadowOpacity"),
    member<&LayerProperties::shadowOffset, CGSize>("shadowOffset"),
    member<&LayerProperties::shadowRadius, double>("shadowRadius"),
    member<&LayerProperties::gradientLocations, std::vector<double>>("locations"),
    member<&LayerProperties::gradientStart, CGPoint>("startPoint"),
    member<&LayerProperties::gradientEnd, CGPoint>("endPoint"),
    member<&LayerProperties::lineWidth, double>("lineWidth"),
    member<&LayerProperties::strokeStart, double>("strokeStart"),
    member<&LayerProperties::strokeEnd, double>("strokeEnd"),
    {"bounds.size", [](const LayerProperties &p) -> AnimatedValue { return p.bounds.size; },
     [](LayerProperties &p, const AnimatedValue &v) { p.bounds.size = std::get<CGSize>(v); }},
    {"bounds.origin", [](const LayerProperties &p) -> AnimatedValue { return p.bounds.origin; },
     [](LayerProperties &p, const AnimatedValue &v) { p.bounds.origin = std::get<CGPoint>(v); }},
    {"position.x", [](const LayerProperties &p) -> AnimatedValue { return double(p.position.x); },
     [](LayerProperties &p, const AnimatedValue &v) { p.position.x = std::get<double>(v); }},
    {"position.y", [](const LayerProperties &p) -> AnimatedValue { return double(p.position.y); },
     [](LayerProperties &p, const AnimatedValue &v) { p.position.y = std::get<double>(v); }},
    {"backgroundColor",
     [](const LayerProperties &p) -> AnimatedValue {
         auto *color = p.background ? std::get_if<render::Rgba>(&*p.background) : nullptr;
         return color ? *color : render::Rgba{};
     },
     [](LayerProperties &p, const AnimatedValue &v) {
         p.background = render::Paint(std::get<render::Rgba>(v));
     }},
    {"transform", [](const LayerProperties &p) -> AnimatedValue { return plane(p); },
     [](LayerProperties &p, const AnimatedValue &v) {
         p.transform = CATransform3DMakeAffineTransform(std::get<CGAffineTransform>(v));
     }},
    {"transform.rotation.z",
     [](const LayerProperties &p) -> AnimatedValue { return takeApart(plane(p)).angle; },
     [](LayerProperties &p, const AnimatedValue &v) {
         Parts parts = takeApart(plane(p));
         parts.angle = std::get<double>(v);
         p.transform = CATransform3DMakeAffineTransform(putTogether(parts));
     }},
    {"transform.scale", [](const LayerProperties &p) -> AnimatedValue { return takeApart(plane(p)).scaleX; },
     [](LayerProperties &p, const AnimatedValue &v) {
         Parts parts = takeApart(plane(p));
         parts.scaleX = parts.scaleY = std::get<double>(v);
         p.transform = CATransform3DMakeAffineTransform(putTogether(parts));
     }},
};

const Accessor *find(std::string_view keyPath) {
    if (keyPath == "transform.rotation") keyPath = "transform.rotation.z";
    auto *found = std::find_if(std::begin(accessors), std::end(accessors),
                               [&](const Accessor &accessor) { return accessor.keyPath == keyPath; });
    return found == std::end(accessors) ? nullptr : found;
}

} // namespace

CGAffineTransform LayerProperties::toSuperlayer() const {
    CGPoint anchor = {bounds.origin.x + anchorPoint.x * bounds.size.width,
                      bounds.origin.y + anchorPoint.y * bounds.size.height};
    CGAffineTransform t = CGAffineTransformMakeTranslation(-anchor.x, -anchor.y);
    t = CGAffineTransformConcat(t, CATransform3DGetAffineTransform(transform));
    return CGAffineTransformConcat(t, CGAffineTransformMakeTranslation(position.x, position.y));
}

CGRect LayerProperties::frame() const {
    if (CGAffineTransformIsIdentity(plane(*this))) {
        // Written out, so that whole numbers stay whole.
        return {
            {position.x - anchorPoint.x * bounds.size.width, position.y - anchorPoint.y * bounds.size.height},
            bounds.size};
    }
    return CGRectApplyAffineTransform(bounds, toSuperlayer());
}

void LayerProperties::setFrame(CGRect frame) {
    CGAffineTransform linear = plane(*this);
    linear.tx = linear.ty = 0;
    bounds.size =
        CGAffineTransformIsIdentity(linear)
            ? frame.size
            : CGRectApplyAffineTransform({{0, 0}, frame.size}, CGAffineTransformInvert(linear)).size;
    position = CGPointZero;
    CGRect placed = this->frame();
    position = {frame.origin.x - placed.origin.x, frame.origin.y - placed.origin.y};
}

LayerProperties::Place LayerProperties::placeIn(CGRect frame) const {
    if (CGAffineTransformIsIdentity(plane(*this))) {
        // The same steps as above, so that zeros keep their signs.
        return {{frame.origin.x - (0 - anchorPoint.x * frame.size.width),
                 frame.origin.y - (0 - anchorPoint.y * frame.size.height)},
                {bounds.origin, frame.size}};
    }
    LayerProperties placed = *this;
    placed.setFrame(frame);
    return {placed.position, placed.bounds};
}

AnimatedValue valueAt(const LayerProperties &properties, std::string_view keyPath) {
    auto *accessor = find(keyPath);
    return accessor ? accessor->get(properties) : AnimatedValue{};
}

void setValueAt(LayerProperties &properties, std::string_view keyPath, const AnimatedValue &value) {
    auto *accessor = find(keyPath);
    if (accessor && accessor->get(properties).index() == value.index()) accessor->set(properties, value);
}

AnimatedValue interpolate(const AnimatedValue &from, const AnimatedValue &to, double fraction) {
    if (from.index() != to.index()) return to;
    return std::visit(
        [&](const auto &start) -> AnimatedValue {
            return mix(start, std::get<std::decay_t<decltype(start)>>(to), fraction);
        },
        from);
}

bool sameValue(const AnimatedValue &a, const AnimatedValue &b) {
    if (a.index() != b.index()) return false;
    if (auto *x = std::get_if<CGPoint>(&a)) return CGPointEqualToPoint(*x, std::get<CGPoint>(b));
    if (auto *x = std::get_if<CGSize>(&a)) return CGSizeEqualToSize(*x, std::get<CGSize>(b));
    if (auto *x = std::get_if<CGRect>(&a)) return CGRectEqualToRect(*x, std::get<CGRect>(b));
    if (auto *x = std::get_if<CGAffineTransform>(&a))
        return CGAffineTransformEqualToTransform(*x, std::get<CGAffineTransform>(b));
    if (auto *x = std::get_if<double>(&a)) return *x == std::get<double>(b);
    if (auto *x = std::get_if<render::Rgba>(&a)) return *x == std::get<render::Rgba>(b);
    if (auto *x = std::get_if<std::vector<double>>(&a)) return *x == std::get<std::vector<double>>(b);
    return true;
}

} // namespace sim
