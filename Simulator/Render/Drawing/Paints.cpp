#include "Paints.hpp"

namespace render {

void setSource(cairo_t *context, const Pattern &pattern, Point origin) {
    if (!pattern.tile || pattern.tile->pixels.empty()) return setSource(context, Rgba{});
    PatternRef source(cairo_pattern_create_for_surface(surfaceFrom(*pattern.tile).get()));
    cairo_pattern_set_extend(source.get(), CAIRO_EXTEND_REPEAT);
    cairo_pattern_set_filter(source.get(), CAIRO_FILTER_BILINEAR);
    double scale = pattern.tile->scale;
    cairo_matrix_t toTile = {scale, 0, 0, scale, -origin.x * scale, -origin.y * scale};
    cairo_pattern_set_matrix(source.get(), &toTile);
    cairo_set_source(context, source.get());
}

void setSource(cairo_t *context, const Paint &paint, const Rect &area) {
    if (const auto *color = std::get_if<Rgba>(&paint))
        setSource(context, *color);
    else
        setSource(context, std::get<Pattern>(paint), Point{area.x, area.y});
}

void setSource(cairo_t *context, const Gradient &gradient, const Rect &area) {
    auto place = [&area](Point unit) {
        return Point{area.x + unit.x * area.width, area.y + unit.y * area.height};
    };
    Point start = place(gradient.start), end = place(gradient.end);
    PatternRef source(cairo_pattern_create_linear(start.x, start.y, end.x, end.y));
    size_t count = gradient.colors.size();
    bool placed = gradient.locations.size() == count;
    for (size_t i = 0; i < count; i++) {
        const Rgba &color = gradient.colors[i];
        double spread = count > 1 ? static_cast<double>(i) / static_cast<double>(count - 1) : 0;
        cairo_pattern_add_color_stop_rgba(source.get(), placed ? gradient.locations[i] : spread, color.red,
                                          color.green, color.blue, color.alpha);
    }
    cairo_set_source(context, source.get());
}

bool isVisible(const Paint &paint) {
    const auto *color = std::get_if<Rgba>(&paint);
    return color ? color->alpha > 0 : std::get<Pattern>(paint).tile != nullptr;
}

bool isVisible(const Gradient &gradient) {
    for (const Rgba &color : gradient.colors)
        if (color.alpha > 0) return true;
    return false;
}

} // namespace render
