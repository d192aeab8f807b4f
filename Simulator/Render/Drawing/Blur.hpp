// A blur that looks like a gaussian one: three running averages. It works on whole numbers, so a value
// depends on what lies within its reach and on nothing else, wherever the blurred area begins.
#pragma once

#include <cstdint>
#include <vector>

namespace render {

// One colour of a blurred area: blue, green, red, alpha, premultiplied, in 256ths of a byte's step.
using Lanes [[gnu::vector_size(16)]] = int32_t;

struct BlurSteps {
    int radii[3]; // each average spans 2 r + 1 cells
    int reach() const { return radii[0] + radii[1] + radii[2]; }
};
// The averages whose spread comes nearest to a gaussian of `sigma` cells.
BlurSteps blurSteps(double sigma);

// Blurs in place; past its edges the area goes on with the values at the edge. Sigma up to 60 cells.
void blur(std::vector<Lanes> &cells, int width, int height, const BlurSteps &steps);
void blur(std::vector<int32_t> &cells, int width, int height, const BlurSteps &steps);

} // namespace render
