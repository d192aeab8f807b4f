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
#include <filesystem>
#include <fstream>
#include <thread>
#include <vector>

namespace render {

namespace {

bool isSearching() {
    for (const auto &task : std::filesystem::directory_iterator("/proc/self/task")) {
        std::string name;
        std::ifstream(task.path() / "comm") >> name;
        if (name == "[pango]") return true;
    }
    return false;
}

// Pango looks for fonts in threads that nobody can join; what one of them works on must not go first.
void waitForSearches() {
    using namespace std::chrono_literals;
    for (int i = 0; i < 5000 && isSearching(); ++i) std::this_thread::sleep_for(1ms);
}

struct Held {
    std::vector<PangoContext *> contexts;

    ~Held() {
        waitForSearches();
        for (PangoContext *context : contexts) {
            PangoFontMap *map = pango_context_get_font_map(context);
            // A font map does not let go of its configuration by itself.
            pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(map), nullptr);
            g_object_unref(map);
            g_object_unref(context);
        }
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
