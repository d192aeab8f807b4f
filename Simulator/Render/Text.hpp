// Setting text: which face, how lines break, how large it comes out.
#pragma once

#include "Geometry.hpp"

#include <array>
#include <string>

namespace render {

enum class Face { ultraLight, light, regular, bold };
inline constexpr std::array kFaces{Face::ultraLight, Face::light, Face::regular, Face::bold};
enum class Alignment { left, center, right };
enum class LineBreak { wordWrap, charWrap, clip, truncateHead, truncateTail, truncateMiddle };

struct TextStyle {
    Face face = Face::regular;
    double size = 17; // points
    Alignment alignment = Alignment::left;
    LineBreak lineBreak = LineBreak::truncateTail;
    int maxLines = 1; // 0: as many as it takes
    bool operator==(const TextStyle &) const = default;
};

// Metrics of one line, in points.
struct FontMetrics {
    double ascent = 0, descent = 0, lineHeight = 0;
};
FontMetrics fontMetrics(Face face, double size);

// The size that the text takes when lines break at `maxWidth` (0: they do not), in whole thousandths of a
// point. The text is UTF-8; an empty one has no size.
Size measureText(const std::string &text, const TextStyle &style, double maxWidth);

} // namespace render
