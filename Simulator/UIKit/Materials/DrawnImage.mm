#include "DrawnImage.h"

#include "Render/Renderer.hpp"
#include "Runtime/Process/Device.hpp"
#include "UIKit/CoreGraphics/CGObjects.h"
#include "UIKit/Images/ImageState.h"
#include "UIKit/Text/FontState.h"

#include <cmath>

namespace sim {

namespace {

int pixels(double points) { return static_cast<int>(std::ceil(points * device().scale)); }

render::Rgba flat(UIColor *color) { return flatColor(object([color CGColor])->paint); }

// The colour at that coverage (0 to 255), premultiplied.
uint32_t covered(const render::Rgba &color, uint32_t coverage) {
    double alpha = color.alpha * coverage / 255;
    auto byte = [](double component) { return static_cast<uint32_t>(std::lround(component * 255)); };
    return byte(alpha) << 24 | byte(color.red * alpha) << 16 | byte(color.green * alpha) << 8 |
           byte(color.blue * alpha);
}

template <typename Coverage>
render::BitmapRef filled(const render::Bitmap &shape, const render::Rgba &color, Coverage &&coverage) {
    auto result = std::make_shared<render::Bitmap>(shape.width, shape.height, shape.scale);
    for (size_t i = 0; i < shape.pixels.size(); ++i)
        result->pixels[i] = covered(color, coverage(shape.pixels[i]));
    return result;
}

} // namespace

UIImage *drawnImage(const std::string &svg, CGSize size) {
    auto bitmap = render::drawSvg(svg, pixels(size.width), pixels(size.height), device().scale);
    return bitmap ? makeImage(bitmap) : nil;
}

UIImage *textImage(NSString *text, UIFont *font, UIColor *color) {
    if ([text length] == 0 || !font) return nil;
    render::TextRun run{
        .text = [text UTF8String], .style = textStyle(font), .color = {1, 1, 1, 1}, .pattern = {}, .box = {}};
    render::Size size = render::measureText(run.text, run.style, 0);
    double scale = device().scale;
    render::Node node;
    node.bounds =
        run.box = {0, 0, std::ceil(size.width * scale) / scale, std::ceil(size.height * scale) / scale};
    node.drawings.push_back(run);
    render::Scene scene{.size = {run.box.width, run.box.height}, .scale = scale, .roots = {node}};
    // White on whatever the renderer clears to, black or nothing: any colour is then how far a pixel is
    // covered.
    render::Renderer renderer;
    return makeImage(filled(renderer.draw(scene), flat(color), [](uint32_t pixel) { return pixel & 0xff; }));
}

UIImage *flatImage(UIImage *image, UIColor *color) {
    if (!image) return nil;
    const auto &source = state(image);
    return makeImage(filled(*source.image->bitmap, flat(color), [](uint32_t pixel) { return pixel >> 24; }),
                     source.source);
}

std::string svgColor(UIColor *color) { return colorText(flat(color)).substr(0, 7); }

render::BitmapRef masked(const render::Bitmap &bitmap, const render::Bitmap &mask) {
    auto result = std::make_shared<render::Bitmap>(bitmap);
    for (size_t i = 0; i < result->pixels.size(); ++i) {
        uint32_t alpha = mask.pixels[i] >> 24, pixel = result->pixels[i], kept = 0;
        for (int shift : {0, 8, 16, 24}) kept |= ((pixel >> shift & 0xff) * alpha + 127) / 255 << shift;
        result->pixels[i] = kept;
    }
    return result;
}

} // namespace sim
