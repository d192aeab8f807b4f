// Lines of text, broken and cut short as a style says.
#pragma once

#include "Render/Basics/Cairo.hpp"
#include "Render/Text.hpp"

#include <pango/pango.h>

#include <memory>
#include <vector>

namespace render {

struct ObjectRelease {
    void operator()(PangoLayout *layout) const { g_object_unref(layout); }
};
using LayoutRef = std::shared_ptr<PangoLayout>;

struct TextLine {
    LayoutRef layout; // keeps the line alive
    PangoLayoutLine *line;
    double width; // points
};

struct TextLayout {
    std::vector<TextLine> lines;
    FontMetrics metrics;
    double width() const;  // of the widest line
    double height() const; // of all lines
};

// Sets UTF-8 text. `maxWidth` 0: lines break only where the text says so, and none is cut short. Kept for the
// next call with the same values. Where the platform's behaviour is not documented (all inferred):
// - clipped text breaks only where it says so, on however many lines;
// - of several truncated lines all but the last break between words;
// - text that goes on after a line end beyond the last line gets its ellipsis at that line's end, and with
//   another mode than truncateTail the line ends count as spaces.
std::shared_ptr<const TextLayout> layOut(const std::string &text, const TextStyle &style, double maxWidth);

// How many lines at most are shown in a box of that height: as many as fit, but at least one, and no more
// than the style wants. 0: any number.
int linesInBox(const TextStyle &style, double height);

// Where each line's baseline starts, in the box's coordinates: centred vertically, the baselines on whole
// pixels of a screen of `scale` as the platform lays them. A line that is wider than the box starts at its
// left edge.
std::vector<Point> baselines(const TextLayout &layout, Alignment alignment, const Rect &box, double scale);

} // namespace render
