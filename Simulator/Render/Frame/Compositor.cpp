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
    underlays_ = Underlays(grid_);
    items_.clear();
    scene_ = {};
}

void Compositor::addMaterials() {
    for (Item &item : items_)
        if (item.node->backdrop && !item.material)
            item.material = std::make_shared<MaterialSource>(grid_, scene_.scale, *item.node->backdrop);
}

void Compositor::mark(const PixelRect &area, int index) {
    grid_.forEach(area, [&](int tile) {
        marked_[tile] = true;
        lowest_[tile] = std::min(lowest_[tile], index);
    });
}

void Compositor::markChanges(const Items &before, const std::vector<Change> &changes) {
    for (const Change &change : changes) {
        // What was there before shows again what lies below the item that took its place.
        int place = change.newFirst < change.newEnd ? change.newFirst : kNone;
        for (int i = change.oldFirst; i < change.oldEnd; i++) mark(before[i].own, place);
        for (int i = change.newFirst; i < change.newEnd; i++) mark(items_[i].own, i);
    }
}

void Compositor::dropUnderlays(const Items &before, const std::vector<Change> &changes) {
    for (const Change &change : changes)
        for (int i = change.oldFirst; i < change.oldEnd; i++) underlays_.drop(before[i].own, i);
    underlays_.renumber(before, items_);
    for (const Change &change : changes)
        for (int i = change.newFirst; i < change.newEnd; i++) underlays_.drop(items_[i].own, i);
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
            mark(seen, i);
            underlays_.drop(seen, i);
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
    lowest_.assign(grid_.count(), kNone);
    markChanges(before, changes);
    dropUnderlays(before, changes);
    // Of a first picture nothing tells yet what will move.
    if (before.empty()) lowest_.assign(grid_.count(), kNone);
    updateMaterials(before, changes);
    paintMarked();
    return canvas_;
}

} // namespace render
