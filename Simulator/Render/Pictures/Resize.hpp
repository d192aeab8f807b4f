// New bitmaps from old ones.
#pragma once

#include "Render/Bitmap.hpp"
#include "Render/Geometry.hpp"

namespace render {

// `width` × `height` pixels; what lies within the caps (points) is kept at the edges, the middle is tiled.
// Caps that do not fit into the size shrink with it; of a bitmap that is all caps the last middle pixel is
// repeated.
Bitmap tiled(const Bitmap &source, const Insets &caps, int width, int height);

// The colour wherever the bitmap has alpha.
Bitmap tinted(const Bitmap &source, const Rgba &tint);

// Half as wide and high (rounded up), each pixel the average of four; the scale halves too.
Bitmap half(const Bitmap &source);

} // namespace render
