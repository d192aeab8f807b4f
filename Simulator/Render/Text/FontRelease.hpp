// Gives back what the text libraries hold, at the end of a process that the leak sanitizer watches:
// fontconfig keeps its patterns by offsets, which the sanitizer cannot follow, so all of them would count as
// lost.
#pragma once

#include <pango/pango.h>

namespace render {

// To be called before anything is made of a font: it is given back in the opposite order. Does nothing
// without the sanitizer, where the end of the process does as well.
void releaseFontsAtExit();

// `context` and its font map are given back with the fonts. Takes over the caller's references of both.
void releaseAtExit(PangoContext *context);

} // namespace render
