// Draws scenes into a bitmap at the device's scale.
#pragma once

#include "DisplayList.hpp"

#include <memory>
#include <vector>

namespace render {

// Loads what the first picture and the first text would load; only earlier. A font that is missing is missed
// when it is used.
void prepare();

class Renderer {
public:
    // Throws std::runtime_error when the fonts are not installed.
    Renderer();
    ~Renderer();
    Renderer(const Renderer &) = delete;
    Renderer &operator=(const Renderer &) = delete;

    // Draws the scene; what equals the scene drawn before is kept. The bitmap is valid until the next call.
    const Bitmap &draw(const Scene &scene);

    // The parts of the bitmap that the last draw painted anew; they do not overlap, and outside them no pixel
    // differs from the draw before.
    const std::vector<PixelRect> &repainted() const;

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

// Copies `source` onto `target` at (x, y) in pixels, clipped to it; for pictures made of several.
void place(Bitmap &target, const Bitmap &source, int x, int y);

// Draws `source` stretched to `rect` (in `target`'s points) onto it. `replace` drops what was there;
// otherwise it is painted over. `alpha` from 0 to 1. Shrinking averages all source pixels.
void drawBitmap(Bitmap &target, const Bitmap &source, const Rect &rect, bool replace, double alpha);

} // namespace render
