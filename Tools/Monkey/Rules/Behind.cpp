// While the panel is locked nobody clears a badge through it, ends an application or opens one.
#include "Deeds.hpp"
#include "Rules.hpp"

#include "Runtime/Values/Nanoseconds.hpp"

#include <algorithm>

namespace sim {

namespace {

// What was begun before the panel was locked has come to its end by then: an item on its way off the panel.
constexpr int64_t kLate = 1'000'000'000;
// For so long something else may open an application: a banner, and what was chosen on the lock screen.
constexpr int64_t kBanner = 20'000'000'000, kUnlocking = 3'000'000'000;

// A finger that went down beside the panel, or before there was one, may open what it met.
void followFingers(const std::vector<Deed> &deeds, bool open, std::set<int64_t> &strangers) {
    for (const Deed &deed : deeds) {
        if (deed.kind == Deed::Kind::down && !open) strangers.insert(deed.number);
        if (deed.kind == Deed::Kind::up) strangers.erase(deed.number);
    }
}

// At most one thing that may open or close a panel.
bool isSimple(const std::vector<Deed> &deeds) {
    return std::ranges::count_if(deeds, [](const Deed &deed) { return deed.kind != Deed::Kind::wait; }) <= 1;
}

bool clears(const Value &event) {
    return event["kind"] == Value("badge_set") &&
           (!event["value"].isNumber() || event["value"].number() == 0);
}

void judge(const Moment &moment, int64_t since, bool opens, Findings &findings) {
    const bool badges = moment.call.find(":badge(") == std::string::npos;
    for (const Value &event : moment.events) {
        if (fromSeconds(event["t"].number()) < since + kLate) continue;
        const bool cleared = badges && clears(event), quit = event["kind"] == Value("quit"),
                   launched = opens && event["kind"] == Value("launch");
        if (cleared || quit || launched)
            findings.push_back(event["id"].string() +
                               (cleared ? " loses its badge"
                                : quit  ? " is quit"
                                        : " opens") +
                               " while the panel is locked");
    }
}

} // namespace

// Follows checkLocked, which keeps the model of the lock.
void checkBehind(const Moment &moment, Memory &memory, Findings &findings) {
    BehindMemory &behind = memory.behind;
    const std::vector<Deed> deeds = deedsOf(moment.call);
    const bool openBefore = moment.before && sightOf(*moment.before).open(),
               openNow = sightOf(moment.now).open();
    const bool stranger = !behind.strangers.empty() || moment.from < behind.elsewhereUntil;
    followFingers(deeds, openBefore && openNow, behind.strangers);
    if (moment.call.find(":banner(") != std::string::npos) behind.elsewhereUntil = moment.to + kBanner;
    if (moment.now.screenLocked)
        behind.elsewhereUntil = std::max(behind.elsewhereUntil, moment.to + kUnlocking);
    if (behind.guardedSince && openBefore && isSimple(deeds)) {
        const bool opens = !stranger && moment.call.find(":run(") == std::string::npos;
        judge(moment, *behind.guardedSince, opens, findings);
    }
    if (!openNow || memory.lock.guarded() != Sure::yes)
        behind.guardedSince.reset();
    else if (!behind.guardedSince || !openBefore)
        behind.guardedSince = moment.to;
}

} // namespace sim
