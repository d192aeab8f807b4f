#include "PanelSight.hpp"

#include "Names.hpp"

namespace sim {

namespace {

constexpr int64_t kButton = -2;

struct Looker {
    const SeenWindow &window;
    PanelSight &sight;

    void notice(size_t view) {
        if (window.views[view].moving) sight.resting = false;
    }
    bool face(size_t content, int64_t tag) {
        size_t view = window.child(content, tag);
        if (view == SeenWindow::npos) return false;
        notice(view);
        return window.views[view].seen;
    }
    void keypad(size_t view) {
        for (size_t part : window.childrenOf(view)) {
            const SeenView &seen = window.views[part];
            if (!seen.seen) continue;
            if (seen.tag == kButton) sight.button = seen.onScreen;
            if (names::isKey(seen.tag))
                sight.keys[static_cast<char>('0' + seen.tag / names::keyStep % 10)] = seen.onScreen;
        }
    }
    void look(size_t panel) {
        const Area &goal = window.views[panel].frame;
        sight.phase = goal.w <= 1 && goal.h <= 1 ? PanelSight::Phase::closing : PanelSight::Phase::open;
        notice(0);
        notice(panel);
        size_t content = window.child(panel, names::content);
        if (content == SeenWindow::npos) return;
        notice(content);
        sight.question = face(content, names::askFace);
        sight.finger = face(content, names::fingerFace);
        sight.keypad = face(content, names::keypadFace);
        if (sight.keypad) keypad(window.child(content, names::keypadFace));
        for (size_t view : window.childrenOf(content)) {
            if (window.views[view].type != names::strip) continue;
            notice(view);
            sight.list = window.views[view].seen;
        }
    }
};

} // namespace

PanelSight sightOf(const Observation &seen) {
    PanelSight sight;
    for (const auto &window : seen.overlays) {
        size_t panel = window.child(0, names::panel);
        if (panel == SeenWindow::npos) continue;
        Looker{window, sight}.look(panel);
        break;
    }
    return sight;
}

} // namespace sim
