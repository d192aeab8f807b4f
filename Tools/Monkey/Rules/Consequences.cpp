// What each thing that a person does to a panel at rest leads to, a second and a half later. Judged are lines
// of one act and a wait; the hand chooses such lines often.
#include "Rules.hpp"
#include "Scene.hpp"
#include "Settings.hpp"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace sim {

namespace {

constexpr double kInside =
    4; // points from an edge that a finger keeps, so that there is no doubt what it meets

struct Case {
    const Moment &moment;
    const Scene &before;
    std::optional<Scene> after;
    Findings &findings;

    bool running() const { return isOn(moment.settings, "badge"); }
    bool hasMarks() const { return isOn(moment.settings, "close"); }
    void broken(const std::string &sentence) const { findings.push_back(moment.call + ": " + sentence); }
    const SceneItem *itemAt(double x, double y) const {
        for (const SceneItem &item : before.items)
            if (covers(item.place, x, y, kInside) && covers(before.panel, x, y, kInside)) return &item;
        return nullptr;
    }
    bool happened(const char *kind, const std::string &id) const {
        return std::ranges::any_of(moment.events, [&](const Value &event) {
            return event["kind"] == Value(kind) && event["id"] == Value(id);
        });
    }
};

using Texts = std::vector<std::string>;

void expectClosed(const Case &c) {
    if (c.after) c.broken("the panel is still there");
}

void expectSame(const Case &c, const char *what) {
    if (!c.after) return c.broken(std::string("the panel is gone after ") + what);
    if (c.after->identifiers() != c.before.identifiers())
        c.broken(std::string("the list is another after ") + what);
}

// In running mode an application that does not run has nothing to be quit.
bool runs(const Observation &seen, const std::string &identifier) {
    auto found = std::ranges::find(seen.applications, identifier, &SeenApplication::identifier);
    return found != seen.applications.end() && found->running;
}

int64_t badgeOf(const Observation &seen, const std::string &identifier) {
    auto found = std::ranges::find(seen.badges, identifier, &SeenBadge::application);
    return found == seen.badges.end() ? 0 : found->value;
}

void expectDone(const Case &c, const std::string &identifier) {
    if (!c.running() && badgeOf(c.moment.now, identifier) != 0) c.broken(identifier + " keeps its badge");
    if (c.running() && runs(*c.moment.before, identifier) && runs(c.moment.now, identifier))
        c.broken(identifier + " still runs");
    // The switcher before 8.0 keeps what has ended.
    const bool forgets = !c.moment.device.version.starts_with("7");
    if (c.running() && forgets && std::ranges::count(c.moment.now.switcher, identifier))
        c.broken(identifier + " is still in the switcher");
}

void expectWithout(const Case &c, const std::string &identifier) {
    if (!c.after) return c.broken("the panel is gone");
    Texts left = c.before.identifiers();
    std::erase(left, identifier);
    if (c.after->identifiers() != left)
        c.broken(identifier + " was taken off, and the list is not what was left");
    for (const auto &other : left)
        if (badgeOf(*c.moment.before, other) != badgeOf(c.moment.now, other))
            c.broken(other + " lost its badge as well");
    expectDone(c, identifier);
}

void expectQuestion(const Case &c) {
    if (!c.after || !c.after->question) return c.broken("nothing is asked");
    if (c.after->okay.w < 40 || c.after->cancel.w < 40) c.broken("the question has no buttons");
    expectSame(c, "the question came");
    if (c.after->panel.h <= c.before.panel.h + 100) c.broken("the panel has no room for the question");
}

void tapOnItem(const Case &c, const SceneItem &item) {
    if (c.before.marks()) return expectSame(c, "a tap in edit mode");
    expectClosed(c);
    if (!c.moment.before->screenLocked && !c.happened("launch", item.identifier) &&
        c.moment.now.foreground != item.identifier)
        c.broken(item.identifier + " does not open");
}

void tap(const Case &c, double x, double y) {
    const Scene &seen = c.before;
    if (seen.question) {
        if (covers(seen.okay, x, y, kInside)) {
            if (!c.after || !c.after->items.empty()) return c.broken("not all have gone");
            for (const auto &identifier : seen.identifiers()) expectDone(c, identifier);
            if (c.after->question) c.broken("the question stays");
        } else if (covers(seen.cancel, x, y, kInside)) {
            expectSame(c, "the question was taken back");
            if (c.after && c.after->question) c.broken("the question stays");
        }
        return;
    }
    constexpr double kBeside = 30; // points; nearer may be the bubble
    const Area wide{seen.panel.x - kBeside, seen.panel.y - 2 * kBeside, seen.panel.w + 2 * kBeside,
                    seen.panel.h + 3 * kBeside};
    if (const SceneItem *item = c.itemAt(x, y)) {
        // A mark in the corner, and what is around it, is something else.
        if (!seen.marks() || x > item->place.x + item->place.w / 2) tapOnItem(c, *item);
    } else if (!covers(wide, x, y) && y > 60) {
        expectClosed(c);
        if (c.moment.now.foreground != c.moment.before->foreground) c.broken("a tap beside opened something");
    }
}

void hold(const Case &c, double x, double y, double seconds) {
    const SceneItem *item = c.itemAt(x, y);
    if (!item || c.before.question || seconds < 0.4) return;
    if (!c.hasMarks() || c.before.marks()) return expectQuestion(c);
    expectSame(c, "the marks came");
    // One that is scrolled away shows nothing.
    auto unmarked = [&](const SceneItem &one) {
        return !one.marked && covers(c.after->panel, one.place.x + one.place.w / 2, one.place.y, 30);
    };
    if (c.after && std::ranges::any_of(c.after->items, unmarked))
        c.broken("not every application has a close mark");
}

void drag(const Case &c, double x, double y, double dx, double dy) {
    const SceneItem *item = c.itemAt(x, y);
    if (!item || dx != 0 || c.before.question || c.hasMarks() || c.before.marks()) return;
    const double middle = c.before.panel.h / 2, top = item->frame.y + dy, bottom = top + item->frame.h;
    constexpr double kDoubt = 14; // points that a recogniser takes before it follows, and a little
    if (top > middle + kDoubt || bottom < middle - kDoubt) return expectWithout(c, item->identifier);
    if (top < middle - kDoubt && bottom > middle + kDoubt) {
        expectSame(c, "a short drag");
        if (badgeOf(*c.moment.before, item->identifier) != badgeOf(c.moment.now, item->identifier))
            c.broken("a short drag cleared the badge of " + item->identifier);
    }
}

void judge(const Case &c) {
    const char *line = c.moment.call.c_str();
    double x = 0, y = 0, dx = 0, dy = 0, seconds = 0, wait = 0;
    if (std::sscanf(line, "phone:tap{%lf, %lf} phone:wait(%lf)", &x, &y, &wait) == 3) return tap(c, x, y);
    if (std::sscanf(line, "phone:hold({%lf, %lf}, %lf) phone:wait(%lf)", &x, &y, &seconds, &wait) == 4)
        return hold(c, x, y, seconds);
    if (std::sscanf(line, "phone:drag({%lf, %lf}, %lf, %lf, %lf) phone:wait(%lf)", &x, &y, &dx, &dy, &seconds,
                    &wait) == 6)
        return drag(c, x, y, dx, dy);
    for (const char *closes : {"phone:banner(", "phone:display(false)", "phone:activator()"})
        if (std::strncmp(line, closes, std::strlen(closes)) == 0) return expectClosed(c);
    if (std::strncmp(line, "phone:home()", 12) != 0) return;
    if (!c.before.marks()) return expectClosed(c);
    expectSame(c, "the home button in edit mode");
    if (c.after && c.after->marks()) c.broken("the marks stay after the home button");
}

} // namespace

void checkConsequences(const Moment &moment, Memory &memory, Findings &findings) {
    std::optional<Scene> before = sceneBeforeAct(moment, memory.sceneBefore, memory.scene);
    if (!before || before->face) return;
    judge({moment, *before, sceneOf(moment.now), findings});
}

} // namespace sim
