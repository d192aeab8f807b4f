#include "Items.hpp"

#include "Render/Basics/Transforms.hpp"
#include "Render/Drawing/Paints.hpp"
#include "Render/Drawing/PathParts.hpp"
#include "Render/Drawing/Shapes.hpp"
#include "Render/Text/TextMask.hpp"

namespace render {

namespace {

// An outline casts no shadow farther from its node's origin; no screen is that large.
constexpr PixelRect kShadowRange = {-4096, -4096, 8192, 8192};

// One pixel more on each side for smoothed edges.
PixelRect pixelsOf(const Rect &rect, const Affine &toDevice) {
    if (rect.empty()) return {};
    return inflate(roundOut(apply(toDevice, rect)), 1);
}

PixelRect extent(const Drawing &drawing, const Affine &toDevice) {
    if (const auto *shape = std::get_if<Shape>(&drawing)) {
        Rect box = extent(*shape);
        // A straight line has no area, but its stroke has.
        return pixelsOf(inset(box, -0.01), toDevice);
    }
    if (const auto *image = std::get_if<Image>(&drawing)) return pixelsOf(image->rect, toDevice);
    return extent(std::get<TextRun>(drawing), toDevice);
}

bool paintsBounds(const Node &node) {
    return node.backdrop || (node.background && isVisible(*node.background)) ||
           (node.gradient && isVisible(*node.gradient)) ||
           (node.borderWidth > 0 && node.borderColor.alpha > 0);
}

PixelRect contentOf(const Node &node, const Affine &toDevice) {
    PixelRect area = paintsBounds(node) ? pixelsOf(node.bounds, toDevice) : PixelRect{};
    for (const Drawing &drawing : node.drawings) area = unite(area, extent(drawing, toDevice));
    return area;
}

PixelRect shadowOf(const Node &node, const Affine &toDevice) {
    if (!isVisible(node.shadow)) return {};
    const Shadow &shadow = *node.shadow;
    Affine linear = linearPart(toDevice);
    double sigma = sigmaOf(shadow.radius, linear);
    ShadowFrame frame =
        shadow.path ? shadowFrame(apply(linear, boundsOf(*shadow.path)), sigma) : outlineFrame(node, linear);
    Point origin = apply(toDevice, Point{shadow.offset.width, shadow.offset.height});
    Rect area = toRect(frame.area);
    area.x += origin.x, area.y += origin.y;
    // The mask's last cells may stick out of its area.
    return frame.area.empty() ? PixelRect{} : inflate(roundOut(area), frame.factor + 1);
}

// Lays out one tree after another into one list.
class Layout {
public:
    Layout(Items &items, const PixelRect &screen) : items_(items), screen_(screen) {}

    void add(const Node &node, const Affine &parentToDevice, const PixelRect &clip) {
        place(node, -1, concat(node.transform, parentToDevice), clip, node.opacity > 0, true);
    }
    // Without its transform, its opacity and its shadow.
    void addAlone(const Node &node, const Affine &toDevice) {
        place(node, -1, toDevice, screen_, true, false);
    }

private:
    void place(const Node &node, int parent, const Affine &toDevice, const PixelRect &clip, bool shown,
               bool withShadow) {
        auto index = static_cast<int>(items_.size());
        Item item;
        item.node = &node;
        item.parent = parent;
        item.toDevice = toDevice;
        item.clip = intersect(clip, screen_);
        shown = shown && isDrawable(toDevice);
        PixelRect inside =
            node.clips && shown ? intersect(item.clip, pixelsOf(node.bounds, toDevice)) : item.clip;
        if (!shown) inside = {};
        if (!inside.empty()) {
            PixelRect content = contentOf(node, toDevice);
            if (withShadow) content = unite(content, shadowOf(node, toDevice));
            item.own = intersect(content, inside);
        }
        item.whole = item.own;
        items_.push_back(item);
        // Hidden ones are laid out too, so that they are recognised when they come back.
        for (const Node &child : node.children) {
            size_t at = items_.size();
            place(child, index, concat(child.transform, toDevice), inside, shown && child.opacity > 0, true);
            items_[index].whole = unite(items_[index].whole, items_[at].whole);
        }
        items_[index].end = static_cast<int>(items_.size());
    }

    Items &items_;
    PixelRect screen_;
};

} // namespace

Items layOutItems(std::span<const Node> roots, const Affine &toDevice, const PixelRect &screen) {
    Items items;
    Layout layout(items, screen);
    for (const Node &root : roots) layout.add(root, toDevice, screen);
    return items;
}

ShadowFrame outlineFrame(const Node &node, const Affine &linear) {
    Items items;
    Layout(items, kShadowRange).addAlone(node, linear);
    if (items.front().whole.empty()) return {};
    return shadowFrame(toRect(items.front().whole), sigmaOf(node.shadow->radius, linear));
}

} // namespace render
