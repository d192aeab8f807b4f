#include "ApplicationIcons.h"

#include "IconColors.hpp"
#include "ImageState.h"
#include "Render/Renderer.hpp"
#include "Runtime/Files/PlatformFiles.hpp"
#include "Runtime/Process/Device.hpp"
#include "UIKit/Materials/DrawnImage.h"

#include <iterator>
#include <sstream>

namespace sim {

namespace {

int pixelSide() { return static_cast<int>(iconSide() * device().scale); }

const render::Bitmap &pixels(UIImage *image) { return *state(image).image->bitmap; }

// "Icons/NAME@2x.png", "Icons/NAME~ipad.png" and so on.
render::BitmapRef suppliedIcon(const std::string &name) {
    int scale = static_cast<int>(device().scale);
    std::string file = "Icons/" + name + (device().pad ? "~ipad" : "");
    if (scale > 1) file += "@" + std::to_string(scale) + "x";
    auto bytes = readPlatformFile(file + ".png");
    auto bitmap = bytes ? render::decodePng(*bytes, scale) : nullptr;
    bool fits = bitmap && bitmap->width == pixelSide() && bitmap->height == pixelSide();
    return fits ? bitmap : nullptr;
}

// The first letter, as the text begins: a letter may take several bytes.
std::string initial(const std::string &name) {
    size_t length = name.empty() ? 0 : 1;
    while (length < name.size() && (name[length] & 0xc0) == 0x80) ++length;
    return name.substr(0, length);
}

render::BitmapRef letterIcon(const IconSpec &application) {
    constexpr double kLetterShare = 0.58;
    const auto &colors = iconColors(application.identifier);
    double side = iconSide();
    render::Node node;
    node.bounds = {0, 0, side, side};
    node.gradient = render::Gradient{{colors.top, colors.bottom}, {0, 1}, {0.5, 0}, {0.5, 1}};
    node.drawings.push_back(render::TextRun{.text = initial(application.name),
                                            .style = {.face = render::Face::light,
                                                      .size = side * kLetterShare,
                                                      .alignment = render::Alignment::center},
                                            .color = {1, 1, 1, 1},
                                            .pattern = {},
                                            .box = node.bounds});
    render::Scene scene{.size = {side, side}, .scale = device().scale, .roots = {node}};
    render::Renderer renderer;
    return std::make_shared<render::Bitmap>(renderer.draw(scene));
}

// The grey grid that stands for a missing drawing.
render::BitmapRef placeholder() {
    static const char *const kDrawing = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 60 60">
<rect width="60" height="60" fill="#f2f2f4"/>
<g fill="none" stroke="#c9c9ce" stroke-width=".5"><path d="M15 0v60M30 0v60M45 0v60M0 15h60M0 30h60M0 45h60"/>
<circle cx="30" cy="30" r="22"/><circle cx="30" cy="30" r="9"/></g></svg>)";
    if (auto supplied = suppliedIcon("placeholder")) return supplied;
    return render::drawSvg(kDrawing, pixelSide(), pixelSide(), device().scale);
}

UIImage *rounded(const render::BitmapRef &square) {
    return square ? makeImage(masked(*square, pixels(iconShape()))) : nil;
}

// A corner whose curvature begins and ends softly: three curves, as distances from the corner in units of the
// radius, along the side that it leaves and the one that it arrives at.
constexpr render::Point kCorner[] = {
    {1.52866483, 0},          {1.08849296, 0},          {0.86840694, 0},          {0.63149379, 0.07491139},
    {0.37282383, 0.16905956}, {0.16905956, 0.37282383}, {0.07491139, 0.63149379}, {0, 0.86840694},
    {0, 1.08849296},          {0, 1.52866483}};

std::string shapeDrawing() {
    double side = iconSide(), radius = kIconCornerRatio * side;
    // The corners clockwise from the upper left one: where each is, and where its arriving side comes from
    // and its leaving one goes to.
    struct Corner {
        render::Point at, from, to;
    };
    const Corner corners[] = {{{0, 0}, {0, 1}, {1, 0}},
                              {{side, 0}, {-1, 0}, {0, 1}},
                              {{side, side}, {0, -1}, {-1, 0}},
                              {{0, side}, {1, 0}, {0, -1}}};
    std::ostringstream svg;
    svg << R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 )" << side << ' ' << side
        << R"("><path d=")";
    for (const auto &corner : corners) {
        for (size_t i = 0; i < std::size(kCorner); ++i) {
            double before = kCorner[i].x * radius, after = kCorner[i].y * radius;
            const char *first = &corner == corners ? "M" : "L";
            svg << (i == 0       ? first
                    : i % 3 == 1 ? "C"
                                 : " ")
                << corner.at.x + corner.from.x * before + corner.to.x * after << ' '
                << corner.at.y + corner.from.y * before + corner.to.y * after;
        }
    }
    svg << R"(z"/></svg>)";
    return svg.str();
}

} // namespace

double iconSide() { return device().pad ? 76 : 60; }

UIImage *iconShape() {
    static UIImage *shape = [drawnImage(shapeDrawing(), CGSizeMake(iconSide(), iconSide())) retain];
    return shape;
}

UIImage *drawApplicationIcon(const IconSpec &application) {
    if (!application.own) return rounded(placeholder());
    auto supplied = suppliedIcon(application.identifier);
    return rounded(supplied ? supplied : letterIcon(application));
}

} // namespace sim
