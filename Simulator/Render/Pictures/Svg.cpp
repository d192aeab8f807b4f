#include "Render/Basics/Cairo.hpp"
#include "Render/Text/Fonts.hpp"

#include <librsvg/rsvg.h>

namespace render {

BitmapRef drawSvg(std::string_view source, int width, int height, double scale) {
    if (width <= 0 || height <= 0) return nullptr;
    useOwnFontsOnly();
    const auto *bytes = reinterpret_cast<const guint8 *>(source.data());
    RsvgHandle *drawing = rsvg_handle_new_from_data(bytes, source.size(), nullptr);
    if (!drawing) return nullptr;
    auto bitmap = std::make_shared<Bitmap>(width, height, scale);
    Context context = contextOn(surfaceOver(*bitmap));
    RsvgRectangle viewport = {0, 0, static_cast<double>(width), static_cast<double>(height)};
    bool drawn = rsvg_handle_render_document(drawing, context.get(), &viewport, nullptr);
    g_object_unref(drawing);
    return drawn ? bitmap : nullptr;
}

} // namespace render
