#include "Compositor.hpp"

#include "Render/Basics/Transforms.hpp"

#include <cmath>

namespace render {

namespace {

int pixels(double points, double scale) {
    constexpr double kMost = 16384;
    return static_cast<int>(std::lround(std::clamp(points * scale, 0.0, kMost)));
}

// Calls `visit` with every area that changed below an item, `oldLimit` and `newLimit` its indexes.
template <typename Visit>
void forEachChangeBelow(const Items &before, const Items &now, const std::vector<Change> &changes,
                        int oldLimit, int newLimit, const Visit &visit) {
    for (const Change &change : changes) {
        for (int i = change.oldFirst; i < std::min(change.oldEnd, oldLimit); i++) visit(before[i].own);
        for (int i = change.newFirst; i < std::min(change.newEnd, newLimit); i++) visit(now[i].own);
    }
}

} // namespace

void Compositor::resize(const Scene &scene) {
    int width = pixels(scene.size.width, scene.scale), height = pixels(scene.size.height, scene.scale);
    bool same = width == canvas_.width && height == canvas_.height && scene.scale == canvas_.scale &&
                scene.background == scene_.background;
    if (same) return;
    canvas_ = Bitmap(width, height, scene.scale);
    grid_ = TileGrid(width, height);
    marked_.assign(grid_.count(), true);
    items_.clear();
    scene_ = {};
}

void Compositor::addMaterials() {
    for (Item &item : items_)
        if (item.node->backdrop && !item.material)
            item.material = std::make_shared<MaterialSource>(grid_, scene_.scale, *item.node->backdrop);
}

void Compositor::mark(const PixelRect &area) {
    grid_.forEach(area, [this](int tile) { marked_[tile] = true; });
}

void Compositor::markChanges(const Items &before, const std::vector<Change> &changes) {
    forEachChangeBelow(before, items_, changes, static_cast<int>(before.size()),
                       static_cast<int>(items_.size()), [this](const PixelRect &area) { mark(area); });
}

void Compositor::updateMaterials(const Items &before, const std::vector<Change> &changes) {
    std::vector<Spread> spreads;
    for (int i = 0; i < static_cast<int>(items_.size()); i++) {
        Item &item = items_[i];
        if (!item.material || item.before < 0) continue;
        auto update = [&](const PixelRect &area) {
            if (area.empty()) return;
            item.material->drop(area);
            PixelRect seen = intersect(inflate(area, item.material->reach()), item.own);
            if (seen.empty()) return;
            mark(seen);
            spreads.push_back({i, seen});
        };
        size_t earlier = spreads.size();
        forEachChangeBelow(before, items_, changes, item.before, i, update);
        for (size_t s = 0; s < earlier; s++) update(PixelRect(spreads[s].area));
    }
}

MaterialSource::Work Compositor::materialWork() const {
    MaterialSource::Work sum;
    for (const Item &item : items_) {
        if (!item.material) continue;
        sum.painted += item.material->work().painted;
        sum.blurred += item.material->work().blurred;
    }
    return sum;
}

const Bitmap &Compositor::draw(const Scene &scene) {
    resize(scene);
    Scene oldScene = std::move(scene_);
    Items before = std::move(items_);
    scene_ = scene;
    items_ = layOutItems(scene_.roots, scaling(scene_.scale), grid_.screen());
    std::vector<Change> changes = compareFrames(before, items_);
    addMaterials();
    markChanges(before, changes);
    updateMaterials(before, changes);
    paintMarked();
    return canvas_;
}

void Compositor::paintTile(cairo_surface_t *surface, int tile, int limit) {
    PixelRect area = grid_.rect(tile);
    Context context(cairo_create(surface));
    setSource(context.get(), scene_.background);
    cairo_set_operator(context.get(), CAIRO_OPERATOR_SOURCE);
    cairo_paint(context.get());
    auto materialOf = [&](int index) -> const Bitmap & {
        auto paintBelow = [this, index](cairo_surface_t *below, int which) {
            paintTile(below, which, index);
        };
        return items_[index].material->tile(tile, items_[index].own, paintBelow);
    };
    Painter(resources_, items_, scene_.scale, area, materialOf).paint(surface, limit);
}

void Compositor::paintMarked() {
    repainted_.clear();
    for (int tile = 0; tile < grid_.count(); tile++) {
        if (!marked_[tile]) continue;
        PixelRect area = grid_.rect(tile);
        Surface surface = surfaceOver(canvas_, area);
        paintTile(surface.get(), tile, static_cast<int>(items_.size()));
        marked_[tile] = false;
        repainted_.push_back(area);
    }
}

} // namespace render
