#include "FontRelease.hpp"

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define SIM_RELEASES_FONTS
#endif
#endif

#ifdef SIM_RELEASES_FONTS

#include <fontconfig/fontconfig.h>
#include <pango/pangocairo.h>
#include <pango/pangofc-fontmap.h>

#include <chrono>
#include <thread>
#include <vector>

namespace render {

namespace {

// Pango looks for fonts in threads that nobody can join, and what one of them works on must not go first.
// Each of them, from before it runs, has a reference of the font map that it looks in.
void waitForSearches(PangoFontMap *map, guint ownReferences) {
    using namespace std::chrono_literals;
    auto references = [&] { return static_cast<guint>(g_atomic_int_get(&G_OBJECT(map)->ref_count)); };
    for (int i = 0; i < 60'000 && references() > ownReferences; ++i) std::this_thread::sleep_for(1ms);
}

struct Held {
    std::vector<PangoContext *> contexts;

    ~Held() {
        for (PangoContext *context : contexts) {
            PangoFontMap *map = pango_context_get_font_map(context);
            waitForSearches(map, 2); // ours and the context's
            // A font map does not let go of its configuration by itself.
            pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(map), nullptr);
            g_object_unref(map);
            g_object_unref(context);
        }
        PangoFontMap *drawings = pango_cairo_font_map_get_default();
        // Asking for it waits for the thread that starts fontconfig.
        pango_fc_font_map_get_config(PANGO_FC_FONT_MAP(drawings));
        waitForSearches(drawings, 1);
        pango_cairo_font_map_set_default(nullptr);
        cairo_debug_reset_static_data();
        FcFini();
    }
};

Held &held() {
    static Held held;
    return held;
}

} // namespace

void releaseFontsAtExit() { held(); }
void releaseAtExit(PangoContext *context) { held().contexts.push_back(context); }

} // namespace render

#else

namespace render {
void releaseFontsAtExit() {}
void releaseAtExit(PangoContext *) {}
} // namespace render

#endif
