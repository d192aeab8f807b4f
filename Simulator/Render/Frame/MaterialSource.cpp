#include "MaterialSource.hpp"

namespace render {

MaterialSource::MaterialSource(const TileGrid &grid, double scale, const Backdrop &style)
    : grid_(grid), style_(style), factor_(reductionFor(style.blurRadius, scale)),
      steps_(blurSteps(style.blurRadius * scale / factor_)), gathered_(grid.count()),
      enlarged_(grid.count()) {}

void MaterialSource::drop(const PixelRect &area) {
    PixelRect changed = intersect(area, grid_.screen());
    grid_.forEach(changed, [this](int tile) { gathered_[tile] = false; });
    PixelRect seen = inflate(changed, reach());
    grid_.forEach(seen, [this](int tile) { enlarged_[tile] = Bitmap(); });
    if (!intersect(seen, ready_).empty()) ready_ = {};
}

const Bitmap &MaterialSource::tile(int tile, const PixelRect &area, const PictureBelow &pictureBelow) {
    Bitmap &known = enlarged_[tile];
    if (!known.pixels.empty()) return known;
    PixelRect rect = grid_.rect(tile);
    if (!contains(ready_, rect)) blurArea(grid_.widened(unite(area, rect)), pictureBelow);
    known = enlarge(rect);
    return known;
}

PixelRect MaterialSource::cellsOf(const PixelRect &area) const {
    int x = area.x / factor_, y = area.y / factor_;
    int right = (area.x + area.width + factor_ - 1) / factor_;
    int bottom = (area.y + area.height + factor_ - 1) / factor_;
    return {x, y, right - x, bottom - y};
}

void MaterialSource::gather(const PixelRect &cells, const PictureBelow &pictureBelow) {
    PixelRect pixels = {cells.x * factor_, cells.y * factor_, cells.width * factor_, cells.height * factor_};
    grid_.forEach(pixels, [&](int tile) {
        if (gathered_[tile]) return;
        PixelRect rect = grid_.rect(tile);
        reduce(pictureBelow(tile), factor_, below_, rect.x / factor_, rect.y / factor_);
        gathered_[tile] = true;
        work_.painted++;
    });
}

void MaterialSource::blurArea(const PixelRect &area, const PictureBelow &pictureBelow) {
    PixelRect whole = cellsOf(grid_.screen());
    if (below_.pixels.empty()) below_ = Bitmap(whole.width, whole.height);
    // One cell more on each side for enlarging.
    PixelRect wanted = intersect(whole, inflate(cellsOf(area), 1));
    PixelRect needed = intersect(whole, inflate(wanted, steps_.reach()));
    gather(needed, pictureBelow);

    std::vector<Lanes> cells;
    cells.reserve(static_cast<size_t>(needed.width) * needed.height);
    for (int y = needed.y; y < needed.y + needed.height; y++) {
        const uint32_t *row = below_.pixels.data() + static_cast<size_t>(y) * below_.width;
        for (int x = needed.x; x < needed.x + needed.width; x++) cells.push_back(unpack(row[x]));
    }
    blur(cells, needed.width, needed.height, steps_);

    blurred_ = Bitmap(wanted.width, wanted.height);
    uint32_t *to = blurred_.pixels.data();
    for (int y = wanted.y - needed.y; y < wanted.y - needed.y + wanted.height; y++) {
        const Lanes *row = cells.data() + static_cast<size_t>(y) * needed.width + (wanted.x - needed.x);
        for (int x = 0; x < wanted.width; x++) *to++ = pack(throughMaterial(row[x], style_));
    }
    blurredCells_ = wanted;
    ready_ = area;
    work_.blurred++;
}

Bitmap MaterialSource::enlarge(const PixelRect &tile) const {
    // Only the cells that the tile needs: the stretching's rounding depends on where its source begins.
    PixelRect cells = intersect(cellsOf(grid_.screen()), inflate(cellsOf(tile), 1));
    PixelRect part = {cells.x - blurredCells_.x, cells.y - blurredCells_.y, cells.width, cells.height};
    Bitmap result(tile.width, tile.height);
    Context context = contextOn(surfaceOver(result));
    PatternRef source(cairo_pattern_create_for_surface(surfaceFrom(blurred_, part).get()));
    cairo_pattern_set_extend(source.get(), CAIRO_EXTEND_PAD);
    cairo_pattern_set_filter(source.get(), factor_ > 1 ? CAIRO_FILTER_BILINEAR : CAIRO_FILTER_NEAREST);
    double cell = 1.0 / factor_;
    cairo_matrix_t toCells = {cell, 0, 0, cell, tile.x * cell - cells.x, tile.y * cell - cells.y};
    cairo_pattern_set_matrix(source.get(), &toCells);
    cairo_set_source(context.get(), source.get());
    cairo_set_operator(context.get(), CAIRO_OPERATOR_SOURCE);
    cairo_paint(context.get());
    return result;
}

} // namespace render
