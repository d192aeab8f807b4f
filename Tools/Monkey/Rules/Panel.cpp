// The panel's coming and going, that there is one at most, and that nothing of it stays behind.
#include "Names.hpp"
#include "Rules.hpp"

#include <algorithm>
#include <cmath>

namespace sim {

namespace {

int64_t momentOf(const Value &event) { return std::llround(event["t"].number() * 1e9); }

} // namespace

void followPanel(const Moment &moment, Memory &memory) {
    for (const auto &event : moment.events) {
        if (event["kind"] != Value("log")) continue;
        const std::string &line = event["text"].string();
        if (line == names::opening) {
            memory.shown = true;
        } else if (line == names::closing) {
            memory.shown = false;
            memory.closedAt = momentOf(event);
        }
    }
    if (memory.shown == moment.now.extension.isShow) return;
    memory.shown = moment.now.extension.isShow;
    memory.closedAt = moment.to;
}

void checkOnePanel(const Moment &moment, Memory &, Findings &findings) {
    size_t panels = 0;
    for (const auto &window : moment.now.overlays)
        for (size_t view : window.childrenOf(0))
            if (window.views[view].tag == names::panel) ++panels;
    if (panels > 1) findings.push_back("the overlay holds " + std::to_string(panels) + " views with tag 3");
    if (moment.now.overlays.size() != 1)
        findings.push_back("there are " + std::to_string(moment.now.overlays.size()) + " overlay windows");
}

void checkClosed(const Moment &moment, Memory &memory, Findings &findings) {
    if (memory.shown || moment.to < memory.closedAt + kClosing) return;
    for (const auto &window : moment.now.overlays) {
        for (size_t place : window.childrenOf(0)) {
            const SeenView &view = window.views[place];
            bool stays = view.tag == names::screenBackdrop || view.tag == names::dismissView;
            if (!stays)
                findings.push_back("a " + view.type + " with tag " + std::to_string(view.tag) +
                                   " stays in the overlay");
            if (view.tag == names::screenBackdrop && view.seen)
                findings.push_back("the screen's backdrop is to be seen");
        }
        if (window.touchable || window.interactive)
            findings.push_back("the overlay takes touches at " + std::to_string(window.touchable) +
                               " of nine points");
    }
}

} // namespace sim
