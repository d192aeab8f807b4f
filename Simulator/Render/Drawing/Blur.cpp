#include "Blur.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace render {

namespace {

using FloatLanes [[gnu::vector_size(16)]] = float;

// A sum stays below 2^24, so it is exact as a float.
int32_t average(int32_t sum, float part) {
    return static_cast<int32_t>(static_cast<float>(sum) * part + 0.5f);
}

Lanes average(Lanes sum, float part) {
    return __builtin_convertvector(__builtin_convertvector(sum, FloatLanes) * part + 0.5f, Lanes);
}

// One running average along `count` cells that lie `step` apart.
template <typename Cell>
void runAlong(const Cell *from, Cell *to, int count, int step, int radius) {
    auto at = [=](int i) -> const Cell & {
        return from[static_cast<std::ptrdiff_t>(std::clamp(i, 0, count - 1)) * step];
    };
    float part = 1.0f / static_cast<float>(2 * radius + 1);
    Cell sum = {};
    for (int i = -radius; i <= radius; i++) sum += at(i);
    for (int i = 0; i < count; i++) {
        to[static_cast<std::ptrdiff_t>(i) * step] = average(sum, part);
        sum += at(i + radius + 1) - at(i - radius);
    }
}

template <typename Cell>
void blurCells(std::vector<Cell> &cells, int width, int height, const BlurSteps &steps) {
    std::vector<Cell> other(cells.size());
    for (int radius : steps.radii) {
        if (radius == 0) continue;
        for (int y = 0; y < height; y++) {
            std::ptrdiff_t row = static_cast<std::ptrdiff_t>(y) * width;
            runAlong(cells.data() + row, other.data() + row, width, 1, radius);
        }
        for (int x = 0; x < width; x++) runAlong(other.data() + x, cells.data() + x, height, width, radius);
    }
}

} // namespace

BlurSteps blurSteps(double sigma) {
    if (!(sigma > 0.1)) return {};
    double spread = 12 * sigma * sigma;
    int narrow = static_cast<int>(std::floor(std::sqrt(spread / 3 + 1)));
    if (narrow % 2 == 0) narrow--;
    // As many of the three take the narrower width as it needs for the variances to add up.
    double exact = (spread - 3.0 * narrow * narrow - 12.0 * narrow - 9) / (-4.0 * narrow - 4);
    int count = static_cast<int>(std::lround(exact));
    BlurSteps steps = {};
    for (int i = 0; i < 3; i++) steps.radii[i] = narrow / 2 + (i < count ? 0 : 1);
    return steps;
}

void blur(std::vector<Lanes> &cells, int width, int height, const BlurSteps &steps) {
    blurCells(cells, width, height, steps);
}

void blur(std::vector<int32_t> &cells, int width, int height, const BlurSteps &steps) {
    blurCells(cells, width, height, steps);
}

} // namespace render
