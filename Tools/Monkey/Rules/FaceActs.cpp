// What a touch on one of the lock's faces leads to, or a finger on the sensor, a second and a half later.
// Judged are lines of one act and a wait, from a face at rest.
#include "Names.hpp"
#include "PanelSight.hpp"
#include "Rules.hpp"
#include "Settings.hpp"

#include <cstdio>

namespace sim {

namespace {

constexpr double kInside = 3; // points from an edge

// The face that can be used.
struct Standing {
    int64_t tag = 0; // 0: none
    size_t view = SeenWindow::npos;
    const SeenWindow *window = nullptr;

    // Its button under the finger: the place among its buttons, or -1.
    int buttonAt(double x, double y) const {
        int number = 0;
        for (size_t at : window->childrenOf(view)) {
            if (window->views[at].type != "UIButton") continue;
            if (covers(window->views[at].onScreen, x, y, kInside)) return number;
            ++number;
        }
        return -1;
    }
    int keyAt(double x, double y) const {
        for (size_t at : window->childrenOf(view)) {
            const SeenView &key = window->views[at];
            if (key.tag >= 10 && key.tag <= 100 && covers(key.onScreen, x, y, 12))
                return static_cast<int>(key.tag / 10 % 10);
        }
        return -1;
    }
    int filled() const {
        int count = 0;
        for (int64_t dot = 1; dot <= 4; ++dot)
            if (size_t at = window->child(view, dot);
                at != SeenWindow::npos && !window->views[at].background.empty())
                ++count;
        return count;
    }
};

Standing standingIn(const Observation &seen) {
    for (const SeenWindow &window : seen.overlays) {
        const size_t panel = window.child(0, names::panel);
        const size_t content = panel == SeenWindow::npos ? panel : window.child(panel, names::content);
        if (content == SeenWindow::npos || window.views[panel].frame.w <= 1) continue;
        for (int64_t tag : {names::askFace, names::fingerFace, names::keypadFace}) {
            const size_t view = window.child(content, tag);
            if (view == SeenWindow::npos || !window.views[view].seen) continue;
            const Area &frame = window.views[view].frame;
            if (frame.x == 0 && frame.y == 0) return {tag, view, &window};
        }
    }
    return {};
}

const char *nameOf(int64_t tag) {
    return tag == names::askFace      ? "the question"
           : tag == names::fingerFace ? "the finger"
           : tag == names::keypadFace ? "the keypad"
                                      : "nothing";
}

struct Case {
    const Moment &moment;
    const Standing before, after;
    Findings &findings;

    void broken(const std::string &sentence) const { findings.push_back(moment.call + ": " + sentence); }
    void expect(int64_t tag) const {
        if (after.tag != tag)
            broken(std::string("from ") + nameOf(before.tag) + " it leads to " + nameOf(after.tag) +
                   ", and " + nameOf(tag) + " is right");
    }
    void expectClosed() const {
        if (sceneOf(moment.now)) broken("the panel is still there");
    }
};

void tap(const Case &c, double x, double y) {
    const bool byFinger = c.moment.device.profile->touchSensor && isOn(c.moment.settings, "touchid");
    const int button = c.before.buttonAt(x, y);
    if (c.before.tag == names::askFace && button == 0)
        c.expect(byFinger ? names::fingerFace : names::keypadFace);
    if (c.before.tag == names::fingerFace && button == 0) c.expectClosed();
    if (c.before.tag == names::fingerFace && button == 1) c.expect(names::keypadFace);
    if (c.before.tag != names::keypadFace) return;
    const int filled = c.before.filled();
    if (button == 0 && filled == 0) return c.expectClosed();
    if (button == 1) return c.expect(names::fingerFace);
    const int wanted = button == 0 ? filled - 1 : c.before.keyAt(x, y) >= 0 ? filled + 1 : -1;
    if (wanted < 0 || wanted > 3) return; // a whole code is another rule's affair
    if (c.after.tag != names::keypadFace || c.after.filled() != wanted)
        c.broken("not " + std::to_string(wanted) + " dots are filled");
}

} // namespace

void checkFaceActs(const Moment &moment, Memory &memory, Findings &findings) {
    const std::optional<Scene> scene = sceneBeforeAct(moment, memory.sceneBefore, memory.scene);
    if (!scene || !scene->face) return;
    const Case c{moment, standingIn(*moment.before), standingIn(moment.now), findings};
    if (!c.before.tag) return;
    double x = 0, y = 0, wait = 0;
    if (std::sscanf(moment.call.c_str(), "phone:tap{%lf, %lf} phone:wait(%lf)", &x, &y, &wait) == 3)
        tap(c, x, y);
    if (moment.call == "phone:finger(3) phone:wait(1.5)" && c.before.tag == names::fingerFace &&
        moment.device.profile->touchSensor)
        c.expect(0);
}

} // namespace sim
