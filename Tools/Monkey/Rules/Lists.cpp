// The badge list and the panel's list of applications name each application once, and the badge list agrees
// with the icons.
#include "Names.hpp"
#include "Rules.hpp"
#include "Settings.hpp"

#include <algorithm>

namespace sim {

namespace {

using Texts = std::vector<std::string>;

bool holds(const Texts &list, const std::string &text) { return std::ranges::find(list, text) != list.end(); }

void checkDoubles(const Texts &list, const char *where, Findings &findings) {
    std::set<std::string> seen;
    for (const auto &text : list)
        if (!seen.insert(text).second) findings.push_back(text + " is twice in " + where);
}

Texts itemsOf(const SeenWindow &window) {
    Texts items;
    for (size_t i = 0; i < window.views.size(); ++i)
        if (window.views[i].type == names::strip)
            for (size_t item : window.childrenOf(i))
                if (!window.views[item].name.empty()) items.push_back(window.views[item].name);
    return items;
}

const SeenBadge *badgeOf(const Observation &seen, const std::string &application) {
    auto found = std::ranges::find(seen.badges, application, &SeenBadge::application);
    return found == seen.badges.end() ? nullptr : &*found;
}

bool mayHide(const Moment &moment, const std::string &application) {
    return isHidden(moment.settingsBefore, application) || isHidden(moment.settings, application);
}

// The application has the badge that it had.
bool isSame(const Moment &moment, const SeenBadge &badge) {
    const SeenBadge *before = moment.before ? badgeOf(*moment.before, badge.application) : nullptr;
    return before && before->value == badge.value;
}

// A badge is missing from the list for a reason: its application is left out, or a panel took it off that was
// open, or still closing, and its badge has not changed since.
bool isExcused(const Moment &moment, Memory &memory, const SeenBadge &badge) {
    constexpr int64_t kFlyingOff = 250'000'000; // an item, before it is taken off
    if (isSame(moment, badge) && memory.unlisted.contains(badge.application)) return true;
    bool panel = memory.shown || moment.from <= memory.closedAt + kClosing + kFlyingOff ||
                 moment.logged(names::opening);
    bool wasListed = moment.before && holds(moment.before->extension.datas, badge.application);
    return mayHide(moment, badge.application) || (panel && (wasListed || moment.from != moment.to));
}

} // namespace

void checkLists(const Moment &moment, Memory &memory, Findings &findings) {
    const Texts &list = moment.now.extension.datas;
    checkDoubles(list, "the badge list", findings);
    for (const auto &window : moment.now.overlays)
        checkDoubles(itemsOf(window), "the panel's list", findings);
    for (const auto &badge : moment.now.badges) {
        if (holds(list, badge.application)) {
            memory.unlisted.erase(badge.application);
        } else if (isExcused(moment, memory, badge)) {
            memory.unlisted.insert(badge.application);
        } else {
            findings.push_back(badge.application + " has a badge and is not in the badge list");
        }
    }
    for (const auto &application : list) {
        const SeenBadge *before = moment.before ? badgeOf(*moment.before, application) : nullptr;
        bool cleared = before && !before->inFolder && !badgeOf(moment.now, application);
        if (cleared) findings.push_back(application + " has lost its badge and is still in the badge list");
    }
}

} // namespace sim
