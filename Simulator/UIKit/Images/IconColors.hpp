// Colours for applications that bring no drawing: always the same ones for the same identifier.
#pragma once

#include "Render/Geometry.hpp"

#include <string_view>

namespace sim {

struct IconColors {
    render::Rgba top, bottom;
};

const IconColors &iconColors(std::string_view identifier);

} // namespace sim
