#include "Fonts.hpp"

#include "FontRelease.hpp"

#include <fontconfig/fontconfig.h>
#include <pango/pangocairo.h>
#include <pango/pangofc-fontmap.h>

#include <array>
#include <memory>
#include <stdexcept>

namespace render {

namespace {

struct ConfigRelease {
    void operator()(FcConfig *config) const { FcConfigDestroy(config); }
};
using Config = std::unique_ptr<FcConfig, ConfigRelease>;

const FcChar8 *bytes(const std::string &text) { return reinterpret_cast<const FcChar8 *>(text.c_str()); }

Config parse(const std::string &file) {
    Config config(FcConfigCreate());
    if (!FcConfigParseAndLoad(config.get(), bytes(file), FcTrue))
        throw std::runtime_error("cannot read the font configuration " + file);
    return config;
}

std::string firstFolder(FcConfig *config, const std::string &file) {
    FcStrList *folders = FcConfigGetFontDirs(config);
    const FcChar8 *folder = FcStrListNext(folders);
    std::string name = folder ? reinterpret_cast<const char *>(folder) : "";
    FcStrListDone(folders);
    if (name.empty()) throw std::runtime_error("the font configuration " + file + " names no folder");
    return name;
}

// Parsed configurations name their folder only; a font is known to `target` once it is added here.
void addFont(FcConfig *target, const std::string &configuration, Face face) {
    std::string font = fontFolder(configuration) + "/" + fontFile(face);
    if (!FcConfigAppFontAddFile(target, bytes(font)))
        throw std::runtime_error("the font " + font + " is missing; install the package fonts-inter");
}

PangoContext *openContext(Face face) {
    useOwnFontsOnly();
    PangoContext *context = pango_font_map_create_context(openFontMap(SIM_FONT_CONFIG, face));
    cairo_font_options_t *options = cairo_font_options_create();
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    pango_cairo_context_set_font_options(context, options);
    cairo_font_options_destroy(options);
    pango_context_set_round_glyph_positions(context, FALSE);
    pango_context_set_language(context, pango_language_from_string("en"));
    pango_context_set_base_dir(context, PANGO_DIRECTION_LTR);
    releaseAtExit(context);
    return context;
}

} // namespace

const char *fontFile(Face face) {
    switch (face) {
    case Face::ultraLight:
        return "Inter-Thin.otf";
    case Face::light:
        return "Inter-Light.otf";
    case Face::bold:
        return "Inter-Bold.otf";
    case Face::regular:
        break;
    }
    return "Inter-Regular.otf";
}

std::string fontFolder(const std::string &file) { return firstFolder(parse(file).get(), file); }

void useOwnFontsOnly() {
    static bool done = false;
    if (done) return;
    releaseFontsAtExit();
    Config config(FcConfigCreate()); // knows no folders, so nothing is searched
    addFont(config.get(), SIM_FONT_CONFIG, Face::regular);
    FcConfigSetCurrent(config.get());
    done = true;
}

PangoFontMap *openFontMap(const std::string &configuration, Face face) {
    Config config = parse(configuration);
    addFont(config.get(), configuration, face);
    PangoFontMap *map = pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT);
    pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(map), config.get());
    return map;
}

PangoContext *fontContext(Face face) {
    // They live as long as the process: text is set until its end.
    static std::array<PangoContext *, kFaces.size()> contexts = {};
    PangoContext *&context = contexts[static_cast<size_t>(face)];
    if (!context) context = openContext(face);
    return context;
}

} // namespace render
