#include "Images.hpp"

#include "Render/Basics/Transforms.hpp"
#include "Resize.hpp"

#include <algorithm>
#include <cmath>

namespace render {

namespace {

constexpr int kLargestSide = 8192;

size_t bytesOf(const Bitmap &bitmap) { return bitmap.pixels.size() * sizeof(uint32_t); }

// Screen pixels for one pixel of the bitmap, along its sides.
Size magnification(const Affine &toDevice, const Rect &rect, const Bitmap &bitmap) {
    return {std::hypot(toDevice.a, toDevice.b) * rect.width / bitmap.width,
            std::hypot(toDevice.c, toDevice.d) * rect.height / bitmap.height};
}

// How often a bitmap may be halved before it would have to be enlarged again. Down to half its size, blending
// neighbours already takes all pixels into account.
int halvings(const Size &magnification) {
    constexpr double kAlmost = 0.05, kMost = 6;
    double larger = std::max(magnification.width, magnification.height);
    return larger > 0 ? static_cast<int>(std::clamp(std::floor(kAlmost - std::log2(larger)), 0.0, kMost)) : 0;
}

bool isNear(double value, double other, double within) { return std::abs(value - other) < within; }

// Moves a transform from bitmap to screen pixels onto whole pixels when it is (nearly) a copy or a quarter
// turn.
bool alignToPixels(Affine &t) {
    constexpr double kSameSize = 1e-4, kSamePlace = 1.0 / 16;
    bool copy = isNear(std::abs(t.a), 1, kSameSize) && isNear(std::abs(t.d), 1, kSameSize);
    bool turn = isNear(std::abs(t.b), 1, kSameSize) && isNear(std::abs(t.c), 1, kSameSize);
    if (!keepsUpright(t) || copy == turn) return false;
    double x = std::round(t.tx), y = std::round(t.ty);
    if (!isNear(x, t.tx, kSamePlace) || !isNear(y, t.ty, kSamePlace)) return false;
    t = {std::round(t.a), std::round(t.b), std::round(t.c), std::round(t.d), x, y};
    return true;
}

} // namespace

template <typename Make>
BitmapRef Images::make(CacheKey key, const BitmapRef &from, const Make &make) {
    key.add(from.get());
    auto entry = [&] { return Made{from, std::make_shared<const Bitmap>(make())}; };
    return made_.get(key, entry, [](const Made &made) { return bytesOf(*made.result); }).result;
}

BitmapRef Images::prepared(const Image &image) {
    BitmapRef bitmap = image.bitmap;
    if (!(image.caps == Insets{})) {
        auto side = [&](double points) {
            return std::clamp(static_cast<int>(std::lround(points * image.bitmap->scale)), 1, kLargestSide);
        };
        int width = side(image.rect.width), height = side(image.rect.height);
        CacheKey key;
        for (double cap : {image.caps.top, image.caps.left, image.caps.bottom, image.caps.right})
            key.add(cap);
        bitmap = make(key.add(width).add(height), bitmap,
                      [&] { return tiled(*image.bitmap, image.caps, width, height); });
    }
    if (!image.tint) return bitmap;
    CacheKey key;
    key.add(image.tint->red).add(image.tint->green).add(image.tint->blue).add(image.tint->alpha);
    return make(key, bitmap, [&] { return tinted(*bitmap, *image.tint); });
}

BitmapRef Images::halved(const BitmapRef &bitmap, int times) {
    BitmapRef result = bitmap;
    for (int i = 0; i < times; i++) result = make(CacheKey().add('h'), result, [&] { return half(*result); });
    return result;
}

void Images::draw(cairo_t *context, const Image &image, const Affine &toDevice, Point origin) {
    if (!image.bitmap || image.bitmap->pixels.empty() || image.rect.empty()) return;
    BitmapRef bitmap = prepared(image);
    const Rect &rect = image.rect;
    bitmap = halved(bitmap, halvings(magnification(toDevice, rect, *bitmap)));
    Affine fromBitmap = {rect.width / bitmap->width, 0, 0, rect.height / bitmap->height, rect.x, rect.y};
    Affine toPixels = concat(concat(fromBitmap, toDevice), translation(-origin.x, -origin.y));
    bool aligned = alignToPixels(toPixels);

    PatternRef source(cairo_pattern_create_for_surface(surfaceFrom(*bitmap).get()));
    cairo_pattern_set_extend(source.get(), CAIRO_EXTEND_PAD);
    cairo_pattern_set_filter(source.get(), aligned ? CAIRO_FILTER_NEAREST : CAIRO_FILTER_BILINEAR);
    cairo_matrix_t toBitmap = matrixOf(inverse(toPixels));
    cairo_pattern_set_matrix(source.get(), &toBitmap);

    cairo_save(context);
    cairo_new_path(context);
    Rect whole = {0, 0, static_cast<double>(bitmap->width), static_cast<double>(bitmap->height)};
    if (auto pixels = snapped(whole, toPixels)) {
        cairo_identity_matrix(context);
        addRect(context, *pixels);
    } else {
        addPath(context, Path::rect(rect));
        cairo_identity_matrix(context);
    }
    cairo_set_source(context, source.get());
    cairo_fill(context);
    cairo_restore(context);
}

} // namespace render
