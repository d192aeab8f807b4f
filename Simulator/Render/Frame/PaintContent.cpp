// What a painter draws of one item by itself.
#include "Painter.hpp"
#include "Render/Basics/Transforms.hpp"
#include "Render/Drawing/Paints.hpp"
#include "Render/Drawing/Shapes.hpp"

#include <algorithm>
#include <cmath>

namespace render {

double radiusOf(const Node &node) {
    double most = std::min(node.bounds.width, node.bounds.height) / 2;
    return std::max(0.0, std::min(node.cornerRadius, most));
}

void Painter::paintShadowOf(Item &item) {
    const Shadow &shadow = *item.node->shadow;
    ShadowMask mask = shadow.path
                          ? resources_.shadows.mask(*shadow.path, shadow.radius, linearPart(item.toDevice))
                          : outlineShadow(item);
    Rgba color = shadow.color;
    color.alpha *= std::min(1.0, shadow.opacity);
    usePixels();
    paintShadow(context_, mask, apply(item.toDevice, Point{shadow.offset.width, shadow.offset.height}),
                color);
}

const ShadowMask &Painter::outlineShadow(Item &item) {
    if (item.outlineShadow) return *item.outlineShadow;
    Node alone = *item.node;
    alone.transform = {};
    alone.opacity = 1;
    alone.shadow.reset();
    auto fill = [&](cairo_surface_t *surface, const Affine &toMask) {
        PixelRect all = {0, 0, cairo_image_surface_get_width(surface),
                         cairo_image_surface_get_height(surface)};
        Items items = layOutItems({&alone, 1}, toMask, all);
        Painter(resources_, items, scale_, all, nullptr).paint(surface, 0, static_cast<int>(items.size()));
    };
    Affine linear = linearPart(item.toDevice);
    item.outlineShadow =
        std::make_shared<ShadowMask>(makeShadow(outlineFrame(*item.node, linear), linear, fill));
    return *item.outlineShadow;
}

void Painter::paintBackdrop(int index, bool rounded) {
    usePixels();
    if (materialOf_) {
        Surface material = surfaceFrom(materialOf_(index));
        cairo_set_source_surface(context_, material.get(), area_.x, area_.y);
    } else {
        cairo_set_source_rgba(context_, 0, 0, 0, 1);
    }
    addBounds(items_[index], rounded);
    cairo_fill(context_);
}

void Painter::paintBorder(const Item &item, bool rounded) {
    const Node &node = *item.node;
    double width = node.borderWidth, radius = radiusOf(node);
    if (!(width > 0) || !(node.borderColor.alpha > 0) || intersect(item.own, area_).empty()) return;
    addBounds(item, rounded);
    auto pixels = snapped(node.bounds, item.toDevice);
    Rect inner = inset(node.bounds, width);
    if (pixels && radius == 0) {
        int line = std::max(1, static_cast<int>(std::lround(sigmaOf(width, item.toDevice))));
        PixelRect hole = inflate(*pixels, -line);
        usePixels();
        if (!hole.empty()) addRect(context_, hole);
    } else if (!inner.empty()) {
        useCoordinates(item);
        addPath(context_, Path::roundedRect(inner, radius - width));
    }
    cairo_set_fill_rule(context_, CAIRO_FILL_RULE_EVEN_ODD);
    setSource(context_, node.borderColor);
    cairo_fill(context_);
    cairo_set_fill_rule(context_, CAIRO_FILL_RULE_WINDING);
}

void Painter::paintDrawing(const Item &item, const Drawing &drawing) {
    useCoordinates(item);
    if (const auto *shape = std::get_if<Shape>(&drawing))
        drawShape(context_, *shape);
    else if (const auto *image = std::get_if<Image>(&drawing))
        resources_.images.draw(context_, *image, item.toDevice, {1.0 * area_.x, 1.0 * area_.y});
    else
        paintText(item, std::get<TextRun>(drawing));
}

void Painter::paintText(const Item &item, const TextRun &run) {
    if (intersect(extent(run, item.toDevice), area_).empty()) return;
    TextMask mask = resources_.text.mask(run, item.toDevice, scale_);
    if (!mask.alpha) return;
    if (run.pattern)
        setSource(context_, *run.pattern, Point{run.box.x, run.box.y});
    else
        setSource(context_, run.color);
    usePixels();
    cairo_mask_surface(context_, mask.alpha.get(), mask.x, mask.y);
}

} // namespace render
