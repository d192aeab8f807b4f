#include "Listed.hpp"

#include "Names.hpp"

#include <algorithm>

namespace sim {

size_t stripIn(const SeenWindow &window, size_t panel) {
    size_t content = window.child(panel, names::content);
    if (content == SeenWindow::npos) return SeenWindow::npos;
    auto children = window.childrenOf(content);
    auto strip =
        std::ranges::find_if(children, [&](size_t view) { return window.views[view].type == names::strip; });
    return strip == children.end() ? SeenWindow::npos : *strip;
}

std::set<std::string> namesIn(const SeenWindow &window, size_t strip) {
    constexpr size_t kShortest = 3;
    std::set<std::string> texts;
    for (size_t item : window.childrenOf(strip)) {
        if (window.views[item].name.empty()) continue;
        for (size_t i = item + 1; i < window.endOf(item); ++i)
            if (window.views[i].text.size() >= kShortest) texts.insert(window.views[i].text);
    }
    return texts;
}

} // namespace sim
