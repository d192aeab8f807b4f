// The lock's faces at rest: which of them stands there when a panel opens, what it says, and where its parts
// are.
#include "Names.hpp"
#include "PanelSight.hpp"
#include "Part.hpp"
#include "Settings.hpp"
#include "Wording.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace sim {

namespace {

constexpr double kTitleTop = 10, kTitleHeight = 30, kButtonHeight = 45, kTitleFont = 20;
constexpr double kAny = std::numeric_limits<double>::quiet_NaN();
constexpr const char *kButtonGround = "#ffffff1a";

struct Judge {
    const Moment &moment;
    const SeenWindow &window;
    const Colours colours;
    double width; // of the panel
    Findings &findings;

    std::string said(const char *key) const { return wording(moment.device.language, key); }
    void missing(const std::string &what) const { findings.push_back(what + " is missing"); }

    std::vector<size_t> ofType(size_t parent, const char *type) const {
        std::vector<size_t> found;
        for (size_t at : window.childrenOf(parent))
            if (window.views[at].type == type) found.push_back(at);
        return found;
    }

    // One of the texts under `keys`.
    double title(size_t face, const char *name, std::initializer_list<const char *> keys,
                 double height) const {
        size_t at = window.child(face, -1);
        if (at == SeenWindow::npos) return missing(std::string("the title of ") + name), 0;
        const Part part(window.views[at], std::string("the title of ") + name, findings);
        part.at(0, kTitleTop, width, height).in(colours.ink).sized(kTitleFont);
        const std::string &text = part.view().text;
        const bool known = std::ranges::any_of(keys, [&](const char *key) { return text == said(key); });
        if (keys.size() && !known) findings.push_back(std::string(name) + " says \"" + text + "\"");
        return part.view().frame.h;
    }

    void button(size_t at, double x, double y, double w, std::initializer_list<const char *> keys) const {
        const std::string first = said(*keys.begin());
        Part(window.views[at], "the button \"" + first + "\"", findings)
            .at(x, y, w, kButtonHeight)
            .on(kButtonGround);
        for (size_t label : window.childrenOf(at)) {
            Part(window.views[label], "the title of the button \"" + first + "\"", findings)
                .in(colours.ink)
                .sized(18);
            const std::string &text = window.views[label].text;
            if (std::ranges::none_of(keys, [&](const char *key) { return text == said(key); }))
                findings.push_back("a button says \"" + text + "\" where \"" + first + "\" is right");
            return;
        }
        missing("the title of the button \"" + first + "\"");
    }

    void twoButtons(const std::vector<size_t> &buttons, double y, std::initializer_list<const char *> left,
                    std::initializer_list<const char *> right) const {
        const double half = (width - 1) / 2;
        if (buttons.size() != 2) return missing("one of two buttons");
        button(buttons[0], 0, y, half, left);
        button(buttons[1], half + 1, y, half, right);
    }

    double ask(size_t face, size_t count) const {
        const bool running = isOn(moment.settings, "badge");
        const double height = title(face, "the question", {}, kAny), top = kTitleTop + height + 10;
        if (height < kTitleHeight) findings.push_back("the question has no room for its text");
        std::string text = said(count == 0   ? (running ? "no_running_apps" : "no_badge")
                                : count == 1 ? (running ? "one_app" : "one_badge")
                                             : (running ? "you_have_app" : "you_have_badge"));
        if (size_t at = text.find("%d"); count > 1 && at != text.npos)
            text.replace(at, 2, std::to_string(count));
        if (size_t at = window.child(face, -1); at != SeenWindow::npos)
            Part(window.views[at], "the question", findings).says(text);
        const auto buttons = ofType(face, "UIButton");
        if (buttons.size() != 1) return missing("the question's button"), 0;
        button(buttons[0], 0, top, width, {"unlock"});
        return top + kButtonHeight;
    }

    double finger(size_t face) const {
        constexpr double kGlyph = 65, kGlyphTop = kTitleTop + kTitleHeight + 10,
                         kButtons = kGlyphTop + kGlyph + 20;
        title(face, "the finger's face", {"unlock_touchid", "fail"}, kTitleHeight);
        size_t glyph = window.child(face, 1);
        if (glyph == SeenWindow::npos)
            moment.device.version < "8" ? void() : missing("the finger's glyph");
        else
            Part(window.views[glyph], "the finger's glyph", findings)
                .at((width - kGlyph) / 2, kGlyphTop, kGlyph, kGlyph);
        twoButtons(ofType(face, "UIButton"), kButtons, {"cancel"}, {"passcode"});
        return kButtons + kButtonHeight;
    }

    void key(size_t at, int digit, double x, double y, double side) const {
        static const char *const letters[] = {"",    " ",   "ABC",  "DEF", "GHI",
                                              "JKL", "MNO", "PQRS", "TUV", "WXYZ"};
        const std::string name = "key " + std::to_string(digit);
        Part(window.views[at], name, findings).at(x, y, side, side).round(side / 2).bordered(1);
        const auto labels = window.childrenOf(at);
        const size_t wanted = !isOn(moment.settings, "clear") ? 0 : digit == 0 ? 1 : 2;
        if (labels.size() != wanted) return missing("a text on " + name + ", or one is too many, and so it");
        for (size_t i = 0; i < wanted; ++i) {
            const Part text(window.views[labels[i]], "the text on " + name, findings);
            text.in(colours.ink)
                .sized(i == 0 ? 30 : 11)
                .says(i == 0 ? std::to_string(digit) : letters[digit]);
            i == 0 ? text.at(0, -5, side, side) : text.at(0, side / 2, side, side / 2);
        }
    }

    double keypad(size_t face, bool sensor) const {
        const bool small = moment.now.screenHeight <= 568;
        const double side = small ? 55 : 65, gap = small ? 20 : 25, step = side + gap / 2;
        constexpr double kDotsTop = kTitleTop + kTitleHeight + 10, kDot = 10, kKeysTop = kDotsTop + kDot + 15;
        title(face, "the keypad", {"write", "try"}, kTitleHeight);
        bool empty = true;
        for (int dot = 0; dot < 4; ++dot) {
            size_t at = window.child(face, dot + 1);
            if (at == SeenWindow::npos) return missing("a dot of the code"), 0;
            const Part part(window.views[at], "dot " + std::to_string(dot + 1), findings);
            part.at(width / 2 - 32 + dot * 18, kDotsTop, kDot, kDot).round(kDot / 2).bordered(1);
            const std::string &ground = part.view().background;
            if (!ground.empty()) part.on(colours.ink);
            if (dot > 0 && empty && !ground.empty())
                findings.push_back("a later dot is filled and the first is not");
            if (!ground.empty()) empty = false;
        }
        const double left = width / 2 - (gap + side + side / 2);
        for (int digit = 0; digit < 10; ++digit) {
            size_t at = window.child(face, digit == 0 ? 100 : digit * 10);
            if (at == SeenWindow::npos) return missing("a key"), 0;
            const int place = digit == 0 ? 10 : digit - 1;
            key(at, digit, left + place % 3 * (side + gap), kKeysTop + place / 3 * step, side);
        }
        const double buttonTop = kKeysTop + 3 * step + side + 15;
        const auto buttons = ofType(face, "UIButton");
        const char *const first = empty ? "cancel" : "delete";
        if (sensor)
            twoButtons(buttons, buttonTop, {first}, {"touch ID"});
        else if (buttons.size() != 1)
            missing("the keypad's button");
        else
            button(buttons[0], 0, buttonTop, width, {first});
        return buttonTop + kButtonHeight;
    }
};

void checkChoice(const Moment &moment, bool question, bool finger, bool sensor, Findings &findings) {
    if (question != isOn(moment.settings, "ask"))
        return findings.push_back(question ? "it asks first, and is not to" : "it does not ask first");
    if (!question && finger != (sensor && isOn(moment.settings, "touchid")))
        findings.push_back("the panel opens on the wrong face");
}

} // namespace

void checkFaces(const Moment &moment, Memory &memory, Findings &findings) {
    std::optional<Scene> scene = sceneAtRest(moment, memory.scene);
    if (!scene || !scene->face) return;
    const PanelSight sight = sightOf(moment.now);
    if (!sight.open() || !sight.face()) return;
    const SeenWindow &window = moment.now.overlays.front();
    const size_t panel = window.child(0, names::panel), content = window.child(panel, names::content);
    const size_t ask = window.child(content, names::askFace),
                 finger = window.child(content, names::fingerFace),
                 keypad = window.child(content, names::keypadFace);
    const bool sensor = moment.device.profile->touchSensor;
    const Judge judge{moment, window, coloursOf(moment.settings), window.views[panel].frame.w, findings};
    auto stands = [&](bool seen, size_t face) {
        return seen && window.views[face].frame.x == 0 && window.views[face].frame.y == 0;
    };
    double height = 0;
    if (stands(sight.question, ask))
        height = judge.ask(ask, scene->items.size());
    else if (stands(sight.finger, finger))
        height = judge.finger(finger);
    else if (stands(sight.keypad, keypad))
        height = judge.keypad(keypad, sensor);
    else
        return findings.push_back("no face stands where it can be used");
    if (std::abs(window.views[panel].frame.h - height) > 0.6)
        findings.push_back("the panel is " + std::to_string(window.views[panel].frame.h) +
                           " high, and its face " + std::to_string(height));
    if (!moment.before || sceneOf(*moment.before)) return;
    checkChoice(moment, stands(sight.question, ask), stands(sight.finger, finger), sensor, findings);
}

} // namespace sim
