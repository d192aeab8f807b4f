#include "Render/Basics/Cairo.hpp"

#include <algorithm>
#include <cstring>

namespace render {

namespace {

constexpr int kLargestSide = 32767; // the most that cairo draws

cairo_status_t readBytes(void *closure, unsigned char *data, unsigned int length) {
    auto &rest = *static_cast<std::string_view *>(closure);
    if (rest.size() < length) return CAIRO_STATUS_READ_ERROR;
    std::memcpy(data, rest.data(), length);
    rest.remove_prefix(length);
    return CAIRO_STATUS_SUCCESS;
}

cairo_status_t writeBytes(void *closure, const unsigned char *data, unsigned int length) {
    static_cast<std::string *>(closure)->append(reinterpret_cast<const char *>(data), length);
    return CAIRO_STATUS_SUCCESS;
}

bool isOpaque(const Bitmap &bitmap) {
    return std::all_of(bitmap.pixels.begin(), bitmap.pixels.end(),
                       [](uint32_t pixel) { return pixel >> 24 == 0xff; });
}

} // namespace

BitmapRef decodePng(std::string_view bytes, double scale) {
    Surface surface(cairo_image_surface_create_from_png_stream(readBytes, &bytes));
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) return nullptr;
    int width = cairo_image_surface_get_width(surface.get());
    int height = cairo_image_surface_get_height(surface.get());
    auto bitmap = std::make_shared<Bitmap>(width, height, scale);
    // Painting converts what came without alpha.
    Context context = contextOn(surfaceOver(*bitmap));
    cairo_set_operator(context.get(), CAIRO_OPERATOR_SOURCE);
    cairo_set_source_surface(context.get(), surface.get(), 0, 0);
    cairo_paint(context.get());
    return bitmap;
}

std::string encodePng(const Bitmap &bitmap) {
    std::string bytes;
    if (bitmap.width <= 0 || bitmap.height <= 0 || std::max(bitmap.width, bitmap.height) > kLargestSide)
        return bytes;
    // Without an alpha channel the file is smaller and quicker to write.
    cairo_format_t format = isOpaque(bitmap) ? CAIRO_FORMAT_RGB24 : CAIRO_FORMAT_ARGB32;
    auto *pixels = reinterpret_cast<unsigned char *>(const_cast<uint32_t *>(bitmap.pixels.data()));
    Surface surface(
        cairo_image_surface_create_for_data(pixels, format, bitmap.width, bitmap.height, bitmap.width * 4));
    cairo_surface_write_to_png_stream(surface.get(), writeBytes, &bytes);
    return bytes;
}

} // namespace render
