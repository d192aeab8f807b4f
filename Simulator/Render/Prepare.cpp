#include "Renderer.hpp"
#include "Text.hpp"

#include <stdexcept>

namespace render {

void prepare() try {
    constexpr const char *kDrawing = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"1\" height=\"1\">"
                                     "<path d=\"M0 0H1V1H0Z\"/></svg>";
    drawSvg(kDrawing, 1, 1, 1);
    for (Face face : {Face::light, Face::regular}) measureText("A", {.face = face}, 0);
} catch (const std::runtime_error &) {
    return;
}

} // namespace render
