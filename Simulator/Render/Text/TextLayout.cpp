#include "TextLayout.hpp"

#include "Fonts.hpp"
#include "Render/Basics/Cache.hpp"

#include <algorithm>
#include <cmath>
#include <optional>

namespace render {

namespace {

constexpr const char *kEllipsis = "\u2026";
constexpr size_t kCachedLayouts = 1024;

bool truncates(LineBreak mode) { return mode >= LineBreak::truncateHead; }

PangoEllipsizeMode ellipsizeMode(LineBreak mode) {
    switch (mode) {
    case LineBreak::truncateHead:
        return PANGO_ELLIPSIZE_START;
    case LineBreak::truncateMiddle:
        return PANGO_ELLIPSIZE_MIDDLE;
    case LineBreak::truncateTail:
        return PANGO_ELLIPSIZE_END;
    default:
        return PANGO_ELLIPSIZE_NONE;
    }
}

std::string validUtf8(const std::string &text) {
    char *valid = g_utf8_make_valid(text.data(), static_cast<gssize>(text.size()));
    std::string result = valid;
    g_free(valid);
    return result;
}

// The platform's face gives all digits one width and joins no characters into signs; its lines break without
// hyphens.
PangoAttrList *features() {
    PangoAttrList *list = pango_attr_list_new();
    pango_attr_list_insert(list, pango_attr_font_features_new("calt=0, tnum=1"));
    pango_attr_list_insert(list, pango_attr_insert_hyphens_new(FALSE));
    return list;
}

LayoutRef newLayout(const std::string &text, const TextStyle &style) {
    LayoutRef layout(pango_layout_new(fontContext(style.face)), ObjectRelease());
    PangoFontDescription *font = pango_font_description_new();
    pango_font_description_set_family(font, "Inter"); // the map holds one font, whatever the name
    pango_font_description_set_absolute_size(font, style.size * PANGO_SCALE);
    pango_layout_set_font_description(layout.get(), font);
    pango_font_description_free(font);
    PangoAttrList *attributes = features();
    pango_layout_set_attributes(layout.get(), attributes);
    pango_attr_list_unref(attributes);
    pango_layout_set_text(layout.get(), text.data(), static_cast<int>(text.size()));
    return layout;
}

int pangoWidth(double points) {
    constexpr double kRounding = 1e-6;
    return static_cast<int>(std::floor(std::min(points, 1e6) * PANGO_SCALE + kRounding));
}

void append(TextLayout &result, const LayoutRef &layout, int count) {
    int present = pango_layout_get_line_count(layout.get());
    for (int i = 0; i < std::min(count, present); i++) {
        PangoLayoutLine *line = pango_layout_get_line_readonly(layout.get(), i);
        PangoRectangle logical;
        pango_layout_line_get_extents(line, nullptr, &logical);
        result.lines.push_back({layout, line, static_cast<double>(logical.width) / PANGO_SCALE});
    }
}

// What a last, truncated line has to show of the text that is left for it.
std::string onOneLine(std::string rest, LineBreak mode) {
    size_t end = rest.find('\n');
    if (end == std::string::npos) return rest;
    if (mode == LineBreak::truncateTail) return rest.substr(0, end) + kEllipsis;
    std::replace(rest.begin(), rest.end(), '\n', ' ');
    return rest;
}

// The room that is left over goes to the ellipsis; gives it back, so that a cut line is as wide as what it
// shows.
void tightenEllipsis(PangoLayout *layout) {
    PangoLayoutLine *line = pango_layout_get_line(layout, 0);
    for (GSList *run = line->runs; run; run = run->next) {
        auto *item = static_cast<PangoGlyphItem *>(run->data);
        if (!(item->item->analysis.flags & PANGO_ANALYSIS_FLAG_IS_ELLIPSIS)) continue;
        for (int i = 0; i < item->glyphs->num_glyphs; i++) {
            PangoGlyphInfo &glyph = item->glyphs->glyphs[i];
            PangoRectangle logical;
            pango_font_get_glyph_extents(item->item->analysis.font, glyph.glyph, nullptr, &logical);
            glyph.geometry.width = std::min(glyph.geometry.width, logical.width);
        }
    }
}

LayoutRef truncatedLine(const std::string &rest, const TextStyle &style, double maxWidth) {
    LayoutRef layout = newLayout(onOneLine(rest, style.lineBreak), style);
    pango_layout_set_single_paragraph_mode(layout.get(), TRUE);
    pango_layout_set_width(layout.get(), pangoWidth(maxWidth));
    pango_layout_set_ellipsize(layout.get(), ellipsizeMode(style.lineBreak));
    tightenEllipsis(layout.get());
    return layout;
}

TextLayout setText(const std::string &given, const TextStyle &style, double maxWidth) {
    TextLayout result;
    result.metrics = fontMetrics(style.face, style.size);
    if (given.empty() || !(style.size > 0)) return result;
    std::string text = validUtf8(given);
    int most = style.maxLines > 0 ? style.maxLines : G_MAXINT;
    bool limited = maxWidth > 0, cut = limited && truncates(style.lineBreak);
    if (cut && most == 1) {
        append(result, truncatedLine(text, style, maxWidth), 1);
        return result;
    }
    LayoutRef layout = newLayout(text, style);
    if (limited && style.lineBreak != LineBreak::clip) {
        bool anywhere = style.lineBreak == LineBreak::charWrap;
        pango_layout_set_wrap(layout.get(), anywhere ? PANGO_WRAP_CHAR : PANGO_WRAP_WORD_CHAR);
        pango_layout_set_width(layout.get(), pangoWidth(maxWidth));
    }
    bool over = pango_layout_get_line_count(layout.get()) > most;
    append(result, layout, over && cut ? most - 1 : most);
    if (!over || !cut) return result;
    int start = pango_layout_get_line_readonly(layout.get(), most - 1)->start_index;
    append(result, truncatedLine(text.substr(start), style, maxWidth), 1);
    return result;
}

} // namespace

double TextLayout::width() const {
    double widest = 0;
    for (const TextLine &line : lines) widest = std::max(widest, line.width);
    return widest;
}

double TextLayout::height() const { return static_cast<double>(lines.size()) * metrics.lineHeight; }

std::shared_ptr<const TextLayout> layOut(const std::string &text, const TextStyle &style, double maxWidth) {
    useOwnFontsOnly(); // before the cache: what layouts are made of must outlive them
    static Cache<std::shared_ptr<const TextLayout>> layouts(kCachedLayouts);
    CacheKey key;
    key.addText(text).add(style.face).add(style.size).add(style.lineBreak).add(style.maxLines).add(maxWidth);
    return layouts.get(
        key, [&] { return std::make_shared<const TextLayout>(setText(text, style, maxWidth)); },
        [](const auto &) { return 1; });
}

int linesInBox(const TextStyle &style, double height) {
    constexpr double kRounding = 0.01; // a box made from a measured height holds all its lines
    double lineHeight = fontMetrics(style.face, style.size).lineHeight;
    if (!(lineHeight > 0)) return style.maxLines;
    int fitting = std::max(1, static_cast<int>(std::floor(std::min(height / lineHeight + kRounding, 1e6))));
    return style.maxLines > 0 ? std::min(style.maxLines, fitting) : fitting;
}

std::vector<Point> baselines(const TextLayout &layout, Alignment alignment, const Rect &box, double scale) {
    std::vector<Point> starts;
    double y = (box.height - layout.height()) / 2 + layout.metrics.ascent;
    for (const TextLine &line : layout.lines) {
        double room = std::max(0.0, box.width - line.width);
        double x = alignment == Alignment::left ? 0 : alignment == Alignment::center ? room / 2 : room;
        starts.push_back({box.x + x, box.y + std::round(y * scale) / scale});
        y += layout.metrics.lineHeight;
    }
    return starts;
}

} // namespace render
