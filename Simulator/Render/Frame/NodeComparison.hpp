// Which parts of two nodes are equal.
#pragma once

#include "Render/DisplayList.hpp"

namespace render {

// What the node paints within its bounds and its own drawings.
bool sameSurface(const Node &one, const Node &other);
// What cuts the node and its children off.
bool sameShape(const Node &one, const Node &other);
// Everything that shows of the node when it stands alone: all but where it is, its opacity and its shadow.
bool sameLook(const Node &one, const Node &other);

} // namespace render
