#include "Render/Basics/Cairo.hpp"
#include "Render/Pictures/Chunks.hpp"

#include <algorithm>
#include <cstring>
#include <zlib.h>

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

bool isOpaque(const Bitmap &bitmap) {
    return std::all_of(bitmap.pixels.begin(), bitmap.pixels.end(),
                       [](uint32_t pixel) { return pixel >> 24 == 0xff; });
}

// A colour without the alpha that it was multiplied with.
unsigned char plain(uint32_t pixel, int shift) {
    uint32_t alpha = pixel >> 24, part = pixel >> shift & 0xff;
    return static_cast<unsigned char>(alpha ? (part * 255 + alpha / 2) / alpha : 0);
}

// The lines as the file has them, each behind a byte that says that it is not filtered.
std::string linesOf(const Bitmap &bitmap, bool opaque) {
    size_t stride = 1 + static_cast<size_t>(bitmap.width) * (opaque ? 3 : 4);
    std::string lines(stride * bitmap.height, '\0');
    const uint32_t *pixel = bitmap.pixels.data();
    for (int y = 0; y < bitmap.height; ++y) {
        char *to = lines.data() + y * stride + 1;
        for (int x = 0; x < bitmap.width; ++x, ++pixel) {
            for (int shift : {16, 8, 0})
                *to++ = static_cast<char>(opaque ? *pixel >> shift : plain(*pixel, shift));
            if (!opaque) *to++ = static_cast<char>(*pixel >> 24);
        }
    }
    return lines;
}

// Of drawn surfaces, unfiltered lines give the smaller files; a higher level takes several times as long.
constexpr int kLevel = 3;

std::string compressed(const std::string &bytes) {
    uLongf length = compressBound(bytes.size());
    std::string result(length, '\0');
    compress2(reinterpret_cast<Bytef *>(result.data()), &length,
              reinterpret_cast<const Bytef *>(bytes.data()), bytes.size(), kLevel);
    result.resize(length);
    return result;
}

std::string headerOf(const Bitmap &bitmap, bool opaque) {
    constexpr char kDepth = 8, kColours = 2, kColoursAndAlpha = 6;
    return bigEndian(static_cast<uint32_t>(bitmap.width)) + bigEndian(static_cast<uint32_t>(bitmap.height)) +
           kDepth + (opaque ? kColours : kColoursAndAlpha) + std::string(3, '\0');
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
    if (bitmap.width <= 0 || bitmap.height <= 0 || std::max(bitmap.width, bitmap.height) > kLargestSide)
        return "";
    // Without an alpha channel the file is smaller and quicker to write.
    bool opaque = isOpaque(bitmap);
    return std::string(kPngSignature) + chunk("IHDR", headerOf(bitmap, opaque)) +
           chunk("IDAT", compressed(linesOf(bitmap, opaque))) + chunk("IEND", "");
}

} // namespace render
