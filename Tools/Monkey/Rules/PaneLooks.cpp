// How the pages in Settings are drawn once they stand still, on a phone that is held upright: by the design's
// numbers.
#include "Part.hpp"
#include "Wording.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace sim {

namespace {

constexpr double kAny = std::numeric_limits<double>::quiet_NaN();

struct Colour {
    const char *name, *drawn;
};
// In the order of the cards.
constexpr std::array kColours = {
    Colour{"red", "#ff0000ff"},     Colour{"orange", "#ff8000ff"}, Colour{"yellow", "#ffff00ff"},
    Colour{"green", "#00ff00ff"},   Colour{"cyan", "#00ffffff"},   Colour{"blue", "#0000ffff"},
    Colour{"magenta", "#ff00ffff"}, Colour{"purple", "#800080ff"}, Colour{"brown", "#996633ff"},
    Colour{"gray", "#808080ff"},    Colour{"black", "#000000ff"},  Colour{"white", "#ffffffff"}};

struct Judge {
    const Moment &moment;
    const PaneSight &pane;
    double width, height; // of the screen
    Findings &findings;

    std::string said(const char *key) const {
        return wording(moment.device.language == "it" ? "it" : "en", key);
    }
    Part part(const PaneView &view, const std::string &what) const { return {view.view, what, findings}; }
    void missing(const std::string &what) const { findings.push_back(what + " is missing"); }

    void header() const {
        constexpr double kHeight = 220, kBar = 40;
        const PaneView *cell = pane.find("HeaderCellForPendix");
        if (!cell) return missing("the first page's header");
        part(*cell, "the header").at(0, kAny, width, kHeight);
        const PaneView *logo = nullptr;
        for (const PaneView *child : pane.childrenOf(*cell))
            if (child->view.background == "#ffffffff" && child->view.frame.h > kHeight) logo = child;
        if (!logo) return missing("what is on the header");
        const double above = height;
        part(*logo, "the header's ground").at(0, -above, width, above + kHeight);
        const auto parts = pane.childrenOf(*logo);
        if (parts.size() != 3) return missing("a part of the header");
        part(*parts[0], "the header's bar").at(0, above + kHeight - kBar, width, kBar);
        const double h = parts[1]->view.frame.h;
        if (h < 60) missing("the height of the header's title");
        part(*parts[1], "the header's title")
            .says("Pendix")
            .sized(80)
            .at(0, above + (kHeight - h - kBar) / 2 - 5, width, h);
        part(*parts[2], "the header's tab")
            .at((width - 100) / 2, above + kHeight - kBar - 20, 100, 40)
            .round(90);
    }

    void credits() const {
        const PaneView *page = nullptr;
        for (const PaneView &view : pane.views)
            for (const PaneView *child : pane.childrenOf(view))
                if (child->view.text == said("desc_contacts")) page = &view;
        if (!page) return missing("the text about the extension");
        const auto parts = pane.childrenOf(*page);
        if (parts.size() != 5) return missing("a part of the page about the extension");
        const std::array<double, 4> fonts = {0, 40, 15, 15};
        double top = 72;
        for (size_t i = 0; i < 4; ++i) {
            const Area &frame = parts[i]->view.frame;
            const Part one = part(*parts[i], "line " + std::to_string(i) + " about the extension");
            if (i == 0)
                one.at((width - 40) / 2, top, 40, 40);
            else
                one.at((width - frame.w) / 2, top, frame.w, frame.h).sized(fonts[i]);
            if (frame.w > width - 48 || frame.h < 10)
                findings.push_back("a line about the extension has the wrong size");
            top += frame.h + 12;
        }
        if (parts[0]->view.image.empty()) missing("the glyph about the extension");
        part(*parts[1], "the name of the extension").says("Pendix");
        const std::string &version = parts[2]->view.text;
        if (!version.starts_with(said("version") + " ") ||
            version.find_first_of("0123456789") == version.npos)
            findings.push_back("the version reads \"" + version + "\"");
        const Area &button = parts[4]->view.frame;
        part(*parts[4], "the button that leads back")
            .says(said("cancel"))
            .at(width - 16 - button.w, 20, button.w, 44);
        for (const PaneView *label : pane.childrenOf(*parts[4]))
            if (label->view.type == "UIButtonLabel") part(*label, "the way back").in("#007affff");
    }

    void sheet() const {
        const PaneView *view = pane.find("PasscodeView");
        if (!view) return missing("the sheet for a code");
        const auto parts = pane.childrenOf(*view);
        const Area &all = view->view.frame;
        if (std::abs(all.w - width) > 0.5)
            return findings.push_back("the sheet is not as wide as the screen");
        if (parts.size() % 5 != 1) return missing("a part of the sheet");
        const size_t first = static_cast<size_t>(pane.sheet->group) * 5;
        if (first + 5 >= parts.size()) return missing("a group of the sheet");
        const double below = all.h - 44, textHeight = parts[first]->view.frame.h,
                     w = parts[first]->view.frame.w;
        const double left = (width - w) / 2;
        part(*parts[first], "the sheet's text").sized(16).at(left, (below + textHeight) / 4, w, textHeight);
        for (size_t i = 0; i < 4; ++i) {
            const Area &own = parts[first + 1 + i]->view.frame;
            part(*parts[first + 1 + i], "a place of the code")
                .at(left + static_cast<double>(i) * (w - own.w) / 3, (below + own.h) * 3 / 8, own.w, own.h);
            if (parts[first + 1 + i]->view.image.empty()) missing("the picture of a place of the code");
        }
        part(*parts.back(), "the field behind the sheet").at(all.w, all.h, 10, 10);
    }

    const PaneView *swatch() const {
        const PaneView *shown = nullptr;
        for (const PaneView &view : pane.views)
            if (view.view.tag == 2 && view.view.frame.w == 1 && view.view.frame.h == 1 &&
                view.view.onScreen.x >= 0 && view.view.onScreen.x < width)
                shown = &view;
        return shown;
    }

    void preview(const PaneView &cell, const std::string &colour, bool marks) const {
        const double correction = -2, side = marks ? 60 : 40, left = (correction + width - side) / 2;
        const PaneView *icon = pane.child(cell, 1), *mark = pane.child(cell, 2);
        if (!icon || icon->view.image.empty()) return missing("the colour's preview");
        part(*icon, "the colour's preview").at(left, marks ? 20 : 30, side, side);
        if (!marks) {
            if (icon->shadow != colour)
                findings.push_back("the preview glows in " + icon->shadow + ", and " + colour + " is right");
            if (icon->shadowRadius != 25 || icon->shadowOpacity != 1)
                findings.push_back("the preview's glow is another one");
            return part(*icon, "the glowing preview").in("#000000ff"), void();
        }
        if (!mark || mark->view.image.empty()) return missing("the preview's mark");
        part(*mark, "the preview's mark").at(left + 53, 20, 10, 10).in(colour);
    }

    void colours(bool marks) const {
        const PaneView *cell = pane.find("cards"), *card = swatch();
        if (!cell || !card) return missing("a card of the colours");
        const std::string &colour = card->view.background;
        part(*card, "a card's colour").at((width - 1) / 2, (height - 1) / 2, 1, 1);
        preview(*cell, colour, marks);
        for (const PaneView &view : pane.views) {
            if (view.view.tag != 4 || view.view.type != "UILabel") continue;
            part(view, "a card's words").says(said("slide")).sized(18).at(0, (height - 150) / 2, width, 30);
        }
        size_t faces = 0;
        for (const PaneView &view : pane.views) {
            if (std::abs(view.view.frame.h - 3 * height) > 1) continue;
            ++faces;
            part(view, "a card's face").at(0, 0, width, 3 * height).round(40);
        }
        if (!faces) missing("a card's face");
    }
};

// The colour that the page in front stands for, and whether the card that is shown is that of the settings.
void checkShownColour(const Moment &moment, const Judge &judge, const char *key, Findings &findings) {
    const PaneView *card = judge.swatch();
    if (!card) return;
    const Value &stored = moment.settings[key];
    auto wanted =
        std::ranges::find_if(kColours, [&](const Colour &one) { return stored == Value(one.name); });
    const std::string drawn = wanted == kColours.end() ? kColours[0].drawn : wanted->drawn;
    if (card->view.background != drawn)
        findings.push_back("the page opens on " + card->view.background + ", and " + drawn + " is stored");
}

void checkSwipe(const Moment &moment, const Judge &before, const Judge &after, int step, Findings &findings) {
    auto place = [](const PaneView *card) {
        auto found = std::ranges::find_if(
            kColours, [&](const Colour &one) { return card && card->view.background == one.drawn; });
        return static_cast<int>(found - kColours.begin());
    };
    const int count = static_cast<int>(kColours.size()), from = place(before.swatch()),
              to = place(after.swatch());
    if (from == count || to == count) return findings.push_back("a card has a colour that none has");
    if (to != (from + step + count) % count)
        findings.push_back(moment.call + " leads to another card than the next");
}

void checkApplied(const Moment &moment, const Judge &judge, const char *key, Findings &findings) {
    const PaneView *card = judge.swatch();
    auto stored = std::ranges::find_if(
        kColours, [&](const Colour &one) { return moment.settings[key] == Value(one.name); });
    if (card && (stored == kColours.end() || card->view.background != stored->drawn))
        findings.push_back("what is applied is not the colour that is shown");
    if (moment.paneNow->alert != judge.said("tint_color"))
        findings.push_back("no note tells that the colour was applied");
}

} // namespace

void checkPaneLooks(const Moment &moment, Memory &memory, Findings &findings) {
    PaneMemory &state = memory.pane;
    if (!moment.paneNow || !moment.paneBefore) {
        state.colours.reset();
        return;
    }
    const PaneSight &pane = *moment.paneNow, &before = *moment.paneBefore;
    if (pane.type == "indeterminateController") state.colours = "colors";
    if (pane.type == "pendixIconController") state.colours = "tint";
    const Profile &profile = *moment.device.profile;
    const bool still = moment.call.find("phone:wait(1.2)") != std::string::npos && !pane.views.empty();
    const Area whole = pane.views.empty() ? Area{} : pane.views.front().view.frame;
    const bool upright = memory.scene.upright && whole.w == profile.width && whole.h == profile.height;
    if (!still || profile.pad() || !upright) return;
    const Judge judge{moment, pane, profile.width, profile.height, findings};
    const bool alone = !pane.alert && !pane.sheet;
    if (alone && pane.type == "PendixSettingsController") judge.header();
    if (alone && pane.type == "creatorsController") judge.credits();
    if (pane.sheet) judge.sheet();
    if (!state.colours || pane.type != "colorPickerController") return;
    judge.colours(*state.colours == "colors");
    const char *const key = state.colours->c_str();
    const Judge then{moment, before, profile.width, profile.height, findings};
    if (before.type != pane.type) checkShownColour(moment, judge, key, findings);
    if (before.type != pane.type || before.alert) return;
    if (moment.call == "pane:swipe(\"left\") phone:wait(1.2)") checkSwipe(moment, then, judge, 1, findings);
    if (moment.call == "pane:swipe(\"right\") phone:wait(1.2)") checkSwipe(moment, then, judge, -1, findings);
    if (moment.call == "pane:press(\"" + judge.said("apply") + "\") phone:wait(1.2)")
        checkApplied(moment, judge, key, findings);
}

} // namespace sim
