#include "Render/Frame/NodeComparison.hpp"

namespace render {

bool sameSurface(const Node &one, const Node &other) {
    return one.backdrop == other.backdrop && one.background == other.background &&
           one.gradient == other.gradient && one.borderWidth == other.borderWidth &&
           one.borderColor == other.borderColor && one.cornerRadius == other.cornerRadius &&
           one.bounds == other.bounds && one.drawings == other.drawings;
}

bool sameShape(const Node &one, const Node &other) {
    if (one.clips != other.clips) return false;
    if (one.clips && !(one.bounds == other.bounds && one.cornerRadius == other.cornerRadius)) return false;
    if (!one.mask || !other.mask) return !one.mask && !other.mask;
    return one.mask == other.mask || *one.mask == *other.mask;
}

bool sameLook(const Node &one, const Node &other) {
    return sameSurface(one, other) && sameShape(one, other) && one.children == other.children;
}

bool Node::operator==(const Node &other) const {
    return id == other.id && transform == other.transform && opacity == other.opacity &&
           shadow == other.shadow && sameLook(*this, other);
}

} // namespace render
