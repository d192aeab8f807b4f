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

// One running average along each row.
template <typename Cell>
void runAcross(const std::vector<Cell> &from, std::vector<Cell> &to, int width, int height, int radius) {
    float part = 1.0f / static_cast<float>(2 * radius + 1);
    for (int y = 0; y < height; y++) {
        const Cell *row = from.data() + static_cast<std::ptrdiff_t>(y) * width;
        Cell *target = to.data() + static_cast<std::ptrdiff_t>(y) * width;
        auto at = [=](int x) -> const Cell & { return row[std::clamp(x, 0, width - 1)]; };
        Cell sum = {};
        for (int x = -radius; x <= radius; x++) sum += at(x);
        for (int x = 0; x < width; x++) {
            target[x] = average(sum, part);
            sum += at(x + radius + 1) - at(x - radius);
        }
    }
}

// The same along each column; all columns at once, because memory is read fastest in rows.
template <typename Cell>
void runDown(const std::vector<Cell> &from, std::vector<Cell> &to, int width, int height, int radius) {
    float part = 1.0f / static_cast<float>(2 * radius + 1);
    auto row = [&](int y) {
        return from.data() + static_cast<std::ptrdiff_t>(std::clamp(y, 0, height - 1)) * width;
    };
    std::vector<Cell> sums(width);
    for (int y = -radius; y <= radius; y++)
        for (int x = 0; x < width; x++) sums[x] += row(y)[x];
    for (int y = 0; y < height; y++) {
        const Cell *next = row(y + radius + 1), *last = row(y - radius);
        Cell *target = to.data() + static_cast<std::ptrdiff_t>(y) * width;
        for (int x = 0; x < width; x++) {
            target[x] = average(sums[x], part);
            sums[x] += next[x] - last[x];
        }
    }
}

template <typename Cell>
void blurCells(std::vector<Cell> &cells, int width, int height, const BlurSteps &steps) {
    std::vector<Cell> other(cells.size());
    for (int radius : steps.radii) {
        if (radius == 0) continue;
        runAcross(cells, other, width, height, radius);
        runDown(other, cells, width, height, radius);
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
