#include "ApplicationScreen.h"

#include "SpringBoard/Icons/IconImages.h"
#include "UIKit/Views/ViewState.h"

#include <cmath>

namespace sim {

namespace {

constexpr double kStatusBar = 20, kNavigationBar = 44, kRow = 64, kHairline = 0.5, kMargin = 15, kDisc = 36;
constexpr render::Rgba kBarColor{0.97, 0.97, 0.98, 1}, kRule{0.78, 0.78, 0.8, 1}, kInk{0.05, 0.05, 0.07, 1},
    kPrimary{0.82, 0.83, 0.85, 1}, kSecondary{0.91, 0.91, 0.93, 1};

render::Shape fill(const render::Rect &rect, const render::Rgba &color, double radius = 0) {
    return {.path = render::Path::roundedRect(rect, radius), .fill = color, .stroke = {}};
}

// A disc, two bars for two lines of text, and a rule below. Bars vary from row to row, always in the same
// way.
void drawRow(render::Node &node, int row, double top, render::Rgba disc) {
    double left = kMargin + kDisc + 12, room = node.bounds.width - left - 2 * kMargin;
    auto share = [&](int salt) { return 0.45 + 0.4 * std::fmod((row + 1) * salt * 0.618, 1); };
    disc.alpha = row % 3 == 1 ? 0.9 : 0.6;
    node.drawings.push_back(fill({kMargin, top + (kRow - kDisc) / 2, kDisc, kDisc}, disc, kDisc / 2));
    node.drawings.push_back(fill({left, top + 18, room * share(3) * 0.8, 10}, kPrimary, 5));
    node.drawings.push_back(fill({left, top + 37, room * share(5), 8}, kSecondary, 4));
    node.drawings.push_back(fill({left, top + kRow - kHairline, node.bounds.width - left, kHairline}, kRule));
}

} // namespace

void drawApplicationScreen(render::Node &node, SBApplication *application) {
    render::Rgba color = meanIconColor(application);
    double width = node.bounds.width, top = kStatusBar + kNavigationBar;
    node.background = render::Rgba{1, 1, 1, 1};
    for (int row = 0; top + row * kRow < node.bounds.height; ++row)
        drawRow(node, row, top + row * kRow, color);
    node.drawings.push_back(fill({0, 0, width, top}, kBarColor));
    node.drawings.push_back(fill({0, top - kHairline, width, kHairline}, kRule));
    node.drawings.push_back(render::TextRun{
        .text = record(application).name,
        .style = {.size = 17, .alignment = render::Alignment::center},
        .color = kInk,
        .pattern = {},
        .box = {kMargin, kStatusBar, width - 2 * kMargin, kNavigationBar},
    });
}

} // namespace sim

@implementation ApplicationScreenView

- (void)appendDrawingsTo:(render::Node &)node {
    sim::drawApplicationScreen(node, _application);
}

@end
