// A display list laid out flat, in the order of painting, with where everything falls on the screen.
#pragma once

#include "MaterialSource.hpp"
#include "Render/DisplayList.hpp"
#include "Render/Drawing/Shadows.hpp"

#include <span>

namespace render {

struct Item {
    const Node *node = nullptr;
    int end = 0;     // the index after the last one of its subtree
    int parent = -1; // of a root: -1
    Affine toDevice; // from the node's coordinates to the screen's pixels
    PixelRect clip;  // what its ancestors' bounds leave of the screen
    PixelRect own;   // what it may paint itself
    PixelRect whole; // what it and its subtree may paint; empty: skip them

    int before = -1; // its index in the frame before, when it was there
    // Kept from frame to frame, made when first needed.
    std::shared_ptr<MaterialSource> material;  // of a backdrop
    std::shared_ptr<ShadowMask> outlineShadow; // of a shadow without a path
};
using Items = std::vector<Item>;

// `toDevice` leads from the roots' parent to pixels; nothing outside of `screen` is ever painted.
Items layOutItems(std::span<const Node> roots, const Affine &toDevice, const PixelRect &screen);

// Where the shadow of the node's own outline falls under a linear transform: its frame, from the node's
// origin.
ShadowFrame outlineFrame(const Node &node, const Affine &linear);

} // namespace render
