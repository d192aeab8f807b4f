// What the panel lists when it opens: every application that somebody expects who has watched the badges or
// the switcher, in that order, with its name and its number, and no other.
#include "Names.hpp"
#include "Rules.hpp"
#include "Scene.hpp"
#include "Settings.hpp"

#include <algorithm>

namespace sim {

namespace {

using Texts = std::vector<std::string>;

const SeenApplication *find(const Observation &seen, const std::string &identifier) {
    auto found = std::ranges::find(seen.applications, identifier, &SeenApplication::identifier);
    return found == seen.applications.end() ? nullptr : &*found;
}

int64_t badgeOf(const Observation &seen, const std::string &identifier) {
    auto found = std::ranges::find(seen.badges, identifier, &SeenBadge::application);
    return found == seen.badges.end() ? 0 : found->value;
}

// Helpers of the system are no applications, and neither is what is in front or hidden.
bool isListable(const Moment &moment, const std::string &identifier) {
    const SeenApplication *application = find(moment.now, identifier);
    return application && application->ownIcon && identifier != moment.now.foreground &&
           !isHidden(moment.settings, identifier) && identifier != "com.apple.SiriViewService" &&
           identifier != "com.apple.PrintKit.Print-Center" && identifier != "com.apple.uikit.PrintStatus";
}

std::string numberOn(int64_t badge) {
    return badge == 0 ? "" : badge >= 1000 ? "999+" : std::to_string(badge);
}

std::string joined(const Texts &list) {
    std::string text;
    for (const auto &entry : list) text += (text.empty() ? "" : ", ") + entry;
    return "[" + text + "]";
}

Texts without(const Texts &list, const std::set<std::string> &some) {
    Texts result;
    for (const auto &entry : list)
        if (!some.contains(entry)) result.push_back(entry);
    return result;
}

void compare(const Texts &listed, const Texts &expected, const BadgeMemory &badges, Findings &findings) {
    const Texts sure = without(expected, badges.unsure), seen = without(listed, badges.unsure);
    if (std::set(sure.begin(), sure.end()) != std::set(seen.begin(), seen.end()))
        findings.push_back("the panel lists " + joined(listed) + " where " + joined(expected) +
                           " is expected");
    else if (without(sure, badges.unordered) != without(seen, badges.unordered))
        findings.push_back("the panel lists " + joined(seen) + " in the wrong order; " + joined(sure) +
                           " is right");
    for (const auto &identifier : listed)
        if (badges.unsure.contains(identifier) && !std::ranges::count(expected, identifier))
            findings.push_back("the panel lists " + identifier + ", which nobody expects");
}

void checkBadged(const Moment &moment, const BadgeMemory &badges, const Scene &scene, Findings &findings) {
    Texts expected;
    for (const auto &identifier : badges.order)
        if (badgeOf(moment.now, identifier) != 0 && isListable(moment, identifier))
            expected.push_back(identifier);
    compare(scene.identifiers(), expected, badges, findings);
}

void checkRunning(const Moment &moment, const Scene &scene, Findings &findings) {
    Texts expected;
    for (const auto &identifier : moment.now.switcher)
        if (isListable(moment, identifier) && find(moment.now, identifier)->running)
            expected.push_back(identifier);
    compare(scene.identifiers(), expected, {}, findings);
}

void checkTexts(const Moment &moment, const Scene &scene, Findings &findings) {
    for (const SceneItem &item : scene.items) {
        const SeenApplication *application = find(moment.now, item.identifier);
        if (application && item.name != application->name)
            findings.push_back(item.identifier + " is called \"" + item.name + "\"");
        const std::string number = numberOn(badgeOf(moment.now, item.identifier));
        // What stands out beyond the panel is not seen.
        if (!item.badge.empty() && item.badge != number)
            findings.push_back(item.identifier + " has " + number + " on its icon and " + item.badge +
                               " on the panel");
    }
    if (scene.items.empty() == scene.emptyText.empty())
        findings.push_back(scene.items.empty() ? "an empty panel says nothing"
                                               : "a full panel says that it is empty");
    if (scene.emptyText == "(null)") findings.push_back("an empty panel says \"(null)\"");
}

// What a panel took off that was open when its badge came is listed again with the badge's next change.
BadgeMemory withUnlisted(const Memory &memory) {
    BadgeMemory badges = memory.scene.badges;
    badges.unsure.insert(memory.unlisted.begin(), memory.unlisted.end());
    return badges;
}

// It opened under this event, and nothing else happened that would change what it lists.
bool justOpened(const Moment &moment, const std::optional<Scene> &scene) {
    if (!scene || !moment.before || sceneOf(*moment.before) || moment.settingsChanged) return false;
    return moment.before->badges == moment.now.badges && moment.before->switcher == moment.now.switcher &&
           moment.before->foreground == moment.now.foreground;
}

} // namespace

void checkContents(const Moment &moment, Memory &memory, Findings &findings) {
    std::optional<Scene> scene = sceneOf(moment.now);
    if (!justOpened(moment, scene)) return;
    if (isOn(moment.settings, "badge"))
        checkRunning(moment, *scene, findings);
    else
        checkBadged(moment, withUnlisted(memory), *scene, findings);
    checkTexts(moment, *scene, findings);
}

} // namespace sim
