#include "Renderer.hpp"

#include "Render/Frame/Compositor.hpp"
#include "Render/Text/Fonts.hpp"

namespace render {

struct Renderer::Impl {
    Compositor compositor;
};

Renderer::Renderer() : impl_(std::make_unique<Impl>()) {
    // Opened here, so that a missing font shows at once and not when the first text is drawn.
    for (Face face : kFaces) fontContext(face);
}

Renderer::~Renderer() = default;

const Bitmap &Renderer::draw(const Scene &scene) { return impl_->compositor.draw(scene); }

const std::vector<PixelRect> &Renderer::repainted() const { return impl_->compositor.repainted(); }

} // namespace render
