// How the panel and what stands on it are drawn at rest: places, sizes, colours and types by the design's
// numbers.
#include "Names.hpp"
#include "Part.hpp"
#include "Settings.hpp"
#include "Wording.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace sim {

namespace {

constexpr double kAny = std::numeric_limits<double>::quiet_NaN();
constexpr double kBadge = 24, kButton = 45;
constexpr const char *kClock = "com.apple.mobiletimer";
constexpr int64_t kCardIcon = -19;

struct Judge {
    const Moment &moment;
    const SeenWindow &window;
    const Scene &scene;
    const Colours colours;
    const bool cards;
    Findings &findings;

    bool on(const char *key) const { return isOn(moment.settings, key); }
    const SeenView &view(size_t at) const { return window.views[at]; }
    Part part(size_t at, const std::string &what) const { return {window.views[at], what, findings}; }
    void missing(const std::string &what) const { findings.push_back(what + " is missing"); }

    // In the window, around the panel.
    void surroundings(size_t panel) const {
        const std::string white = "#ffffffff", mist = "#ffffffb3";
        part(panel, "the panel").round(10).on(colours.light ? white : kNone).seenAt(1);
        size_t bubble = window.child(0, 2), logo = window.child(0, 1),
               screen = window.child(0, names::screenBackdrop);
        if (bubble == SeenWindow::npos) return missing("the bubble");
        part(bubble, "the bubble").on(colours.light ? mist : kNone);
        if (view(bubble).radius < view(bubble).frame.w / 2) findings.push_back("the bubble is not round");
        if (logo == SeenWindow::npos) return missing("the logo");
        part(logo, "the logo").in(colours.paper);
        if (view(logo).image.empty()) missing("the logo's picture");
        if (screen == SeenWindow::npos) return missing("the screen's backdrop");
        part(screen, "the screen's backdrop").seenAt(on("blur") ? 1 : 0);
        const char *const dim = on("back") ? "#00000003" : colours.light ? "#000000b3" : "#ffffffb3";
        part(0, "what dims the screen").on(dim);
        if (moment.now.itemPlace && moment.now.itemVisible) place(panel, logo, bubble, *moment.now.itemPlace);
    }

    // By the indicator, unless the settings say where.
    void place(size_t panel, size_t logo, size_t bubble, const Area &item) const {
        part(logo, "the logo").at(item.x, item.y, item.w, item.h);
        part(bubble, "the bubble").at(item.x - item.w / 2, item.y + 5, 2 * item.w, 2 * item.h + 10);
        const Area &stands = view(panel).frame;
        const double wide = moment.now.screenWidth, high = moment.now.screenHeight;
        const std::string position =
            on("rech") && moment.settings["position"].isString() ? moment.settings["position"].string() : "";
        if (position == "middle")
            return void(part(panel, "the panel").at(kAny, (high - stands.h) / 2, kAny, kAny));
        if (position == "bottom")
            return void(part(panel, "the panel").at(kAny, high - stands.h - wide / 10, kAny, kAny));
        if (item.y != 0) return; // let down
        part(panel, "the panel").at(kAny, item.h + 10, kAny, kAny);
        const bool sticksOut = item.x + 1.5 * item.w >= stands.x + stands.w - 3;
        part(bubble, "the bubble").seenAt(sticksOut ? 0 : 1);
    }

    void hand(size_t icon, int64_t tag, const char *name, double width, double length,
              const char *colour) const {
        size_t at = window.child(icon, tag);
        if (at == SeenWindow::npos) return missing(name);
        part(at, name).on(colour).round(width / 2);
        (void)length;
    }

    void badge(size_t at, const Area &icon) const {
        if (!view(at).seen) return;
        bool number = false;
        for (size_t inner : window.childrenOf(at))
            number = number || view(inner).picture || (view(inner).seen && !view(inner).text.empty());
        if (!number) missing("the number on a badge");
        const double w = view(at).frame.w;
        part(at, "a badge")
            .at(icon.x + icon.w - w / 2 - 4, icon.y - kBadge / 2 + 4, w, kBadge)
            .round(kBadge / 2);
        const bool round = view(at).name.size() == 1;
        if (w < kBadge || (round && w > kBadge + 0.5))
            findings.push_back("a badge is " + std::to_string(w) + " wide");
    }

    void mark(size_t at, bool editing) const {
        const double side = kBadge - 4;
        const Part mark = part(at, "a close mark");
        mark.in(colours.ink).on(colours.paper);
        if (editing)
            mark.at(4 - side / 2, 4 - side / 2, side, side).round(side / 2);
        else
            mark.at(kAny, kAny, 0, 0);
        if (view(at).image.empty()) missing("the close mark's picture");
    }

    void item(size_t at, bool editing) const {
        const std::string &identifier = view(at).name;
        size_t icon = window.child(at, names::itemIcon), mark = window.child(at, names::closeMark),
               badgeView = window.child(at, names::itemBadge);
        if (icon == SeenWindow::npos || mark == SeenWindow::npos || badgeView == SeenWindow::npos)
            return missing("a part of " + identifier);
        const Area &cell = view(at).frame;
        const double height = cards ? cell.w * moment.now.screenHeight / moment.now.screenWidth : cell.w;
        const Part drawn = part(icon, "the icon of " + identifier);
        const double room = on("paging") ? stripHeight() - moment.now.iconHeight - 20
                                         : (stripHeight() - moment.now.iconHeight - 10) / 2 + 5;
        part(at, identifier).at(kAny, cards ? 0 : room, kAny, height - cell.w + moment.now.iconHeight + 5);
        drawn.at(0, 0, cell.w, height);
        if (cards) drawn.round(4).on(colours.light ? "#33333380" : "#cccccc80");
        for (size_t label : window.childrenOf(at))
            if (view(label).type == "UILabel")
                part(label, "the name of " + identifier)
                    .at(-10, height + 5, cell.w + 20, 15)
                    .in(colours.ink)
                    .sized(12);
        this->mark(mark, editing);
        badge(badgeView, {0, 0, cell.w, cell.w});
        if (cards) cardIcon(at, cell.w, height);
        if (identifier == kClock) {
            hand(icon, 1000, "the second hand", 1, 0, "#ff0000ff");
            hand(icon, 1001, "the minute hand", 2, 0, "#000000ff");
            hand(icon, 1002, "the hour hand", 2, 0, "#000000ff");
        }
    }

    double stripHeight() const { return moment.now.iconHeight + 36 + (on("paging") ? 10 : 0); }

    void cardIcon(size_t item, double width, double height) const {
        size_t at = window.child(item, kCardIcon);
        if (at == SeenWindow::npos) return missing("the small icon of a card");
        part(at, "the small icon of a card").at((width - 25) / 2, height - 20, 25, 25).round(13.5 / 60 * 25);
    }

    void strip(size_t at, const Area &panel) const {
        const double height = scene.question ? panel.h - 110 : panel.h;
        part(at, "the strip").at(0, scene.question ? 65 : 0, panel.w, height).seenAt(1);
        double right = 0, first = 0;
        for (size_t child : window.childrenOf(at)) {
            const Area &frame = view(child).frame;
            if (!view(child).name.empty() && right == 0) first = frame.x;
            if (!view(child).name.empty()) right = frame.x + frame.w;
            if (!view(child).name.empty()) item(child, scene.marks());
            if (view(child).type != "UILabel") continue;
            const char *const key = on("badge") ? "no_running_apps" : "no_badge";
            part(child, "what an empty panel says")
                .in(colours.ink)
                .sized(16)
                .says(wording(moment.device.language, key))
                .at(0, 0, panel.w, kAny);
        }
        const double content = on("paging") ? static_cast<double>(scene.dots) * panel.w : right + first;
        const double reach = content > panel.w ? content : panel.w + 1;
        if (std::abs(view(at).contentWidth - reach) > 1.1 && !scene.items.empty())
            findings.push_back("the strip reaches to " + std::to_string(view(at).contentWidth) + ", and " +
                               std::to_string(reach) + " is right");
    }

    void dots(size_t at, double width) const {
        const auto dots = window.childrenOf(at);
        if (dots.empty()) return; // the last application has gone
        const auto count = static_cast<double>(dots.size());
        const double step = count < 2 ? 16 : std::min(16.0, (width - 20) / (count - 1)),
                     side = std::min(6.0, step * 0.75);
        const double row = (count - 1) * step + 20;
        part(at, "the row of dots").at((width - row) / 2, scene.question ? 72 : 7, row, 11);
        int lit = 0;
        for (size_t dot : dots) {
            const Part one = part(dot, "a page dot");
            one.at(static_cast<double>(view(dot).tag) * step + 10, 5.5 - side / 2, side, side)
                .round(side / 2);
            if (view(dot).background == colours.ink)
                ++lit;
            else
                one.on("#808080ff");
        }
        if (lit != 1) findings.push_back(std::to_string(lit) + " page dots are lit");
    }

    void answer(size_t at, const char *key, bool right, double y, double width) const {
        const double half = (width - 1) / 2;
        const Part button = part(at, std::string("the answer ") + key);
        button.at(right ? half + 1 : 0, y, half, kButton).on("#0000001a").seenAt(1);
        for (size_t label : window.childrenOf(at))
            return (void)part(label, std::string("the title of the answer ") + key)
                .in(colours.ink)
                .says(wording(moment.device.language, key));
        missing("the title of an answer");
    }

    void question(size_t content, const Area &panel) const {
        part(content, "what is in the panel").at(0, 45, panel.w, kAny);
        bool shown = false;
        for (size_t at : window.childrenOf(content)) {
            if (!view(at).seen) continue;
            const double bottom = panel.h - 45 - kButton;
            if (view(at).tag == names::promptText) {
                shown = true;
                part(at, "the question")
                    .at(0, -45, panel.w, 65)
                    .in(colours.ink)
                    .sized(20)
                    .says(wording(moment.device.language, on("badge") ? "clear_app" : "clear_badge"));
            }
            (void)bottom;
            if (view(at).tag == names::promptCancel) answer(at, "cancel", false, 20, panel.w);
            if (view(at).tag == names::promptOkay) answer(at, "ok", true, 20, panel.w);
        }
        if (!shown) missing("the question's text");
    }

    void content(size_t at, const Area &panel) const {
        for (size_t child : window.childrenOf(at)) {
            if (view(child).type == names::strip) strip(child, panel);
            if (view(child).tag == names::pageDots) dots(child, panel.w);
        }
        if (scene.question)
            question(at, panel);
        else
            part(at, "what is in the panel").at(0, 0, panel.w, kAny);
    }
};

} // namespace

void checkLooks(const Moment &moment, Memory &memory, Findings &findings) {
    std::optional<Scene> scene = sceneAtRest(moment, memory.scene);
    if (!scene || moment.now.overlays.empty()) return;
    const SeenWindow &window = moment.now.overlays.front();
    const size_t panel = window.child(0, names::panel);
    const Judge judge{moment,
                      window,
                      *scene,
                      coloursOf(moment.settings),
                      isOn(moment.settings, "ca") && !scene->items.empty(),
                      findings};
    if (window.views[panel].frame.w <= 1) return;
    judge.surroundings(panel);
    if (window.touchable != 9) findings.push_back("touches beside the panel do not come to it");
    if (!scene->face) judge.content(window.child(panel, names::content), window.views[panel].frame);
}

} // namespace sim
