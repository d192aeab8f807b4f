// The indicator shows when the settings and the badges say so, as of the moments at which they are looked at:
// a change of a badge, the display's turning on, a panel with nothing to show, and the poll's tick after a
// watched setting changed.
#include "Names.hpp"
#include "Rules.hpp"
#include "Settings.hpp"

#include <algorithm>
#include <array>

namespace sim {

namespace {

// What may have come out of the decisions of an interval.
struct Outcome {
    std::array<bool, 2> possible{}; // by visibility
    bool certain = false;           // one of the decisions was made for sure

    void add(bool visible) { possible[visible] = true; }
};

AppliedSettings watched(const Value &settings) {
    return {isOn(settings, "enable"), isOn(settings, "hide"), isOn(settings, "hide_t")};
}

struct Interval {
    const Moment &moment;
    bool darkBefore, darkAfter, displayTurned;

    std::array<const Value *, 2> settings() const { return {&moment.settingsBefore, &moment.settings}; }
    // Whether some application counts, by the list at either end.
    template <typename Visit>
    void withLists(const Value &settings, Visit visit) const {
        bool running = isOn(settings, "badge");
        visit(!running && hasListed(settings, moment.now.extension.datas));
        if (moment.before) visit(!running && hasListed(settings, moment.before->extension.datas));
    }
    bool listChanged() const {
        return moment.before && moment.before->extension.datas != moment.now.extension.datas;
    }
};

bool ticked(const Moment &moment) {
    auto due = [](const Observation &seen) {
        auto poll = std::ranges::find(seen.timers, "preferenceChangesByMe", &SeenTimer::selector);
        return poll == seen.timers.end() ? 0 : poll->due;
    };
    return moment.before && due(*moment.before) != due(moment.now);
}

void poll(const Interval &interval, Memory &memory, Outcome &outcome) {
    const Moment &moment = interval.moment;
    bool dark = interval.darkBefore && interval.darkAfter && !interval.displayTurned;
    if (!ticked(moment) || dark) return;
    bool certain = !moment.settingsChanged && !interval.displayTurned && !interval.darkBefore;
    AppliedSettings wanted = watched(moment.settings);
    bool steady = certain && memory.applied && *memory.applied == wanted;
    if (steady) return;
    for (const Value *settings : interval.settings()) {
        AppliedSettings by = watched(*settings);
        interval.withLists(*settings, [&](bool badges) {
            outcome.add(by.enable && !by.hide && (!by.onlyWithBadges || badges));
        });
    }
    if (certain && memory.applied) outcome.certain = true;
    // What stood in the file for a part of the interval is not known.
    if (moment.settingsChanged && moment.from != moment.to)
        for (bool visible : {false, true}) outcome.add(visible);
    memory.applied = certain ? std::optional(wanted) : std::nullopt;
}

// A badge was drawn, the display came on, or a panel may have found nothing to show.
void badges(const Interval &interval, const Memory &memory, Outcome &outcome) {
    const Moment &moment = interval.moment;
    bool drawn = moment.entered("_resizeForTextImage:") > 0;
    bool panel = memory.shown || moment.logged(names::opening);
    bool woken = moment.entered("_handleDisplayTurnedOn") + moment.entered("_handleDisplayTurnedOn:") > 0;
    bool alwaysDark = interval.darkBefore && interval.darkAfter && !interval.displayTurned;
    if ((!drawn && !woken && !panel) || alwaysDark) return;
    bool changed = drawn && interval.listChanged() && !interval.darkBefore && !interval.displayTurned;
    bool certain = !moment.settingsChanged && !interval.darkAfter && (woken || changed);
    bool follows = false;
    for (const Value *settings : interval.settings()) {
        if (!isOn(*settings, "enable")) continue;
        if (isOn(*settings, "hide") && (drawn || panel)) {
            outcome.add(false);
            follows = follows || changed;
        }
        if (isOn(*settings, "badge") || isOn(*settings, "hide") || !isOn(*settings, "hide_t")) continue;
        follows = true;
        // With no time between, the list that counts is the one that it left.
        if (moment.from == moment.to) {
            outcome.add(hasListed(*settings, moment.now.extension.datas));
        } else {
            interval.withLists(*settings, [&](bool some) { outcome.add(some); });
        }
    }
    if (follows && certain) outcome.certain = true;
}

const char *text(bool visible) { return visible ? "shows" : "is hidden"; }

} // namespace

void checkIndicator(const Moment &moment, Memory &memory, Findings &findings) {
    int64_t off = moment.entered("_handleDisplayTurnedOff");
    int64_t on = moment.entered("_handleDisplayTurnedOn") + moment.entered("_handleDisplayTurnedOn:");
    Interval interval{moment, memory.dark, memory.dark, off || on};
    if (off && !on) interval.darkAfter = true;
    if (on && !off) interval.darkAfter = false;
    if (off && on) interval.darkAfter = !moment.now.display;
    memory.dark = interval.darkAfter;
    if (moment.restarted()) {
        memory.visible = isOn(moment.settings, "enable");
        memory.applied = watched(moment.settings);
    }
    Outcome outcome;
    poll(interval, memory, outcome);
    badges(interval, memory, outcome);
    if (!outcome.certain && memory.visible) outcome.add(*memory.visible);
    bool seen = moment.now.itemVisible;
    bool known = moment.now.itemPresent && memory.visible;
    if (known && !outcome.possible[seen])
        findings.push_back(std::string("the indicator ") + text(seen) + " where it " + text(!seen) +
                           " by the rules");
    memory.visible = seen;
}

} // namespace sim
