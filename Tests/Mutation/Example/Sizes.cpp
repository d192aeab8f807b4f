#include "Sizes.hpp"

#include <algorithm>

namespace example {

double area(const Size &size) {
    // Nobody is smaller than that.
    if (size.width < Size::least || !(size.height >= Size::least)) return 0;
    return std::max(size.width, /* or */ size.height) * kStep;
}

} // namespace example
