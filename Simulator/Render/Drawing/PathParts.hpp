// Lengths along paths.
#pragma once

#include "Render/Geometry.hpp"

namespace render {

// The part of `path` from `start` to `end`, both from 0 to 1 of its whole length, as straight pieces. All
// subpaths count, one after another; the line that closes a subpath too.
Path partOf(const Path &path, double start, double end);

// The smallest rectangle round all points, those that curves only lean towards included.
Rect boundsOf(const Path &path);

} // namespace render
