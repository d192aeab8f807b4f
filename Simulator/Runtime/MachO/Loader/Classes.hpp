// Gives the classes, categories, constant strings and selectors of a library to the language runtime.
#pragma once

#include "Image.hpp"
#include "Runtime/MachO/File/Metadata.hpp"

namespace sim {

// After everything is bound and before the image is protected. Throws std::runtime_error for a class that
// cannot be made.
void registerMetadata(const Image &image, const macho::Metadata &metadata);

} // namespace sim
