// The faces of the simulated device, each from one file.
#pragma once

#include "Render/Text.hpp"

#include <pango/pango.h>

#include <string>

namespace render {

// Where the faces are looked for: the first folder that the font configuration `file` names. Throws
// std::runtime_error when the file cannot be read or names none.
std::string fontFolder(const std::string &file);

// The file of a face, without its folder.
const char *fontFile(Face face);

// Makes the regular face all that the process knows of fonts, in place of the machine's own set-up, which
// would otherwise be read by the first library that asks (a drawing with text in it does). Throws like
// openFontMap.
void useOwnFontsOnly();

// A font map that holds the face's file and nothing else, so that no text can come out in another. Throws
// std::runtime_error, naming the package to install, when the file is not there.
PangoFontMap *openFontMap(const std::string &configuration, Face face);

// The context in which text of that face is set: points, no hinting, advances not rounded to pixels. Opened
// once a process from the simulator's own configuration; throws like openFontMap.
PangoContext *fontContext(Face face);

} // namespace render
