// Nothing of an application shows while the panel is locked, and no lock stands where none is to be passed.
#include "Listed.hpp"
#include "Names.hpp"
#include "Rules.hpp"

namespace sim {

namespace {

std::string described(const SeenView &view) {
    std::string text = view.type;
    if (!view.name.empty()) text += " '" + view.name + "'";
    if (!view.text.empty()) text += " \"" + view.text + "\"";
    if (!view.image.empty()) text += " with the image " + view.image;
    return text;
}

// What a view without a picture, a text or a background of its own shows is nothing.
bool shows(const SeenView &view) {
    return view.seen && (!view.name.empty() || !view.text.empty() || !view.image.empty() ||
                         view.type == "UIImageView" || view.type == "UILabel");
}

void checkList(const SeenWindow &window, size_t panel, Findings &findings) {
    const size_t strip = stripIn(window, panel);
    if (strip == SeenWindow::npos) return;
    for (size_t i = strip + 1; i < window.endOf(strip); ++i)
        if (shows(window.views[i]))
            return findings.push_back("the list shows a " + described(window.views[i]));
    auto texts = namesIn(window, strip);
    for (const SeenView &view : window.views)
        if (view.seen && (texts.contains(view.text) || texts.contains(view.name)))
            findings.push_back("a " + described(view) + " is to be seen beside the list");
}

} // namespace

void checkLocked(const Moment &moment, Memory &memory, Findings &findings) {
    memory.lock.follow(moment);
    const Sure guarded = memory.lock.guarded();
    const PanelSight sight = sightOf(moment.now);
    // A face that makes way for the list moves.
    const bool face = sight.resting && sight.face();
    if (guarded == Sure::no && sight.open() && face)
        findings.push_back("the panel asks for a code or a finger and nothing has locked it");
    if (guarded != Sure::yes && !face) return;
    for (const auto &window : moment.now.overlays)
        for (size_t view : window.childrenOf(0))
            if (window.views[view].tag == names::panel) checkList(window, view, findings);
}

} // namespace sim
