#include "Painter.hpp"

#include "Render/Basics/Transforms.hpp"
#include "Render/Drawing/Paints.hpp"

#include <algorithm>

namespace render {

namespace {

// True when the node shows one thing only, so that there is nothing that could shine through its edge.
bool isOnePiece(const Node &node) {
    size_t pieces = node.drawings.size() + isVisible(node.shadow) + node.backdrop.has_value() +
                    node.background.has_value() + node.gradient.has_value() + (node.borderWidth > 0);
    return node.children.empty() && pieces <= 1;
}

} // namespace

Painter::Painter(PaintResources &resources, Items &items, double scale, const PixelRect &area,
                 MaterialOf materialOf)
    : resources_(resources), items_(items), scale_(scale), area_(area), materialOf_(std::move(materialOf)) {}

void Painter::paint(cairo_surface_t *surface, int from, int limit) {
    Context context(cairo_create(surface));
    context_ = context.get();
    from_ = from;
    limit_ = limit;
    for (int i = 0; i < std::min<int>(limit, static_cast<int>(items_.size())); i = items_[i].end)
        paintItem(i);
    context_ = nullptr;
}

int Painter::beginning(int index) const {
    int result = index;
    for (int around = items_[index].parent; around >= 0; around = items_[around].parent) {
        const Node &node = *items_[around].node;
        if (node.opacity < 1 || node.mask || (node.clips && !clipsSquarely(items_[around]))) result = around;
    }
    return result;
}

void Painter::useCoordinates(const Item &item) {
    cairo_matrix_t matrix = matrixOf(concat(item.toDevice, translation(-area_.x, -area_.y)));
    cairo_set_matrix(context_, &matrix);
}

void Painter::usePixels() {
    cairo_matrix_t matrix = matrixOf(translation(-area_.x, -area_.y));
    cairo_set_matrix(context_, &matrix);
}

// The node's bounds as the path: whole pixels where there are no corners to round.
void Painter::addBounds(const Item &item, bool rounded) {
    const Node &node = *item.node;
    cairo_new_path(context_);
    double radius = rounded ? radiusOf(node) : 0;
    if (radius == 0) {
        if (auto pixels = snapped(node.bounds, item.toDevice)) {
            usePixels();
            addRect(context_, *pixels);
            return;
        }
    }
    useCoordinates(item);
    addPath(context_, Path::roundedRect(node.bounds, radius));
}

// True when the whole area lies so far inside of the bounds that their corners do not show.
bool Painter::liesInside(const Item &item) const {
    if (!keepsUpright(item.toDevice)) return false;
    double radius = radiusOf(*item.node);
    const Rect &bounds = item.node->bounds;
    Rect wide = {bounds.x, bounds.y + radius, bounds.width, bounds.height - 2 * radius};
    Rect high = {bounds.x + radius, bounds.y, bounds.width - 2 * radius, bounds.height};
    for (const Rect &part : {wide, high})
        if (contains(snap(apply(item.toDevice, part)), inflate(area_, 1))) return true;
    return false;
}

// True when clipping to the bounds cuts off whole pixels.
bool Painter::clipsSquarely(const Item &item) const {
    return snapped(item.node->bounds, item.toDevice) && (radiusOf(*item.node) == 0 || liesInside(item));
}

void Painter::paintItem(int index) {
    const Item &item = items_[index];
    if (index >= limit_ || item.end <= from_ || intersect(item.whole, area_).empty()) return;
    if (item.node->opacity >= 1) return paintMasked(index);
    cairo_push_group(context_);
    paintMasked(index);
    cairo_pop_group_to_source(context_);
    cairo_paint_with_alpha(context_, item.node->opacity);
}

void Painter::paintMasked(int index) {
    const Item &item = items_[index];
    if (!item.node->mask) return paintClipped(index);
    cairo_push_group(context_);
    paintClipped(index);
    PatternRef content(cairo_pop_group(context_));
    cairo_push_group(context_);
    paintMask(item);
    PatternRef mask(cairo_pop_group(context_));
    cairo_set_source(context_, content.get());
    cairo_mask(context_, mask.get());
}

void Painter::paintMask(const Item &item) {
    Items items = layOutItems({item.node->mask.get(), 1}, item.toDevice, area_);
    Painter painter(resources_, items, scale_, area_, nullptr);
    painter.context_ = context_;
    painter.limit_ = static_cast<int>(items.size());
    painter.paintItem(0);
}

void Painter::paintClipped(int index) {
    const Item &item = items_[index];
    const Node &node = *item.node;
    if (!node.clips) return paintContent(index, true);
    bool square = clipsSquarely(item);
    if (square || isOnePiece(node)) {
        cairo_save(context_);
        addBounds(item, !square);
        cairo_clip(context_);
        paintContent(index, false);
        cairo_restore(context_);
        return;
    }
    // Cut off once as a whole: each edge on its own would let what lies below shine through.
    cairo_push_group(context_);
    paintContent(index, false);
    cairo_pop_group_to_source(context_);
    addBounds(item, true);
    cairo_fill(context_);
}

void Painter::paintContent(int index, bool rounded) {
    Item &item = items_[index];
    const Node &node = *item.node;
    if (index >= from_ && !intersect(item.own, area_).empty()) {
        if (isVisible(node.shadow)) paintShadowOf(item);
        if (node.backdrop) paintBackdrop(index, rounded);
        useCoordinates(item);
        if (node.background && isVisible(*node.background)) {
            setSource(context_, *node.background, node.bounds);
            addBounds(item, rounded);
            cairo_fill(context_);
        }
        useCoordinates(item);
        if (node.gradient && isVisible(*node.gradient)) {
            setSource(context_, *node.gradient, node.bounds);
            addBounds(item, rounded);
            cairo_fill(context_);
        }
        for (const Drawing &drawing : node.drawings) paintDrawing(item, drawing);
    }
    for (int child = index + 1; child < items_[index].end; child = items_[child].end) paintItem(child);
    if (items_[index].end <= limit_) paintBorder(items_[index], rounded);
}

} // namespace render
