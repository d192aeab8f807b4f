// What stands on the icons of the home screen, and the indicator's own drawing: the standard badges or the
// small marks in their place, and the pulse's glow.
#include "Rules.hpp"
#include "Settings.hpp"

#include <algorithm>
#include <cmath>
#include <map>

namespace sim {

namespace {

constexpr int64_t kMark = 1953;
constexpr const char *kBadge = "SBIconBadgeView";
constexpr double kGlowRadius = 13; // points

const std::map<std::string, std::string> kColours = {
    {"black", "#000000ff"}, {"white", "#ffffffff"},  {"gray", "#808080ff"},   {"red", "#ff0000ff"},
    {"green", "#00ff00ff"}, {"blue", "#0000ffff"},   {"cyan", "#00ffffff"},   {"magenta", "#ff00ffff"},
    {"brown", "#996633ff"}, {"orange", "#ff8000ff"}, {"purple", "#800080ff"}, {"yellow", "#ffff00ff"},
    {"clear", "#00000000"}};

std::string colourOf(const Value &name) {
    auto found = name.isString() ? kColours.find(name.string()) : kColours.end();
    return found == kColours.end() ? "#ff0000ff" : found->second;
}

// As long as the settings are those that the home screen started with: later ones count for each icon from
// its next drawing.
void checkIcon(const Moment &moment, const SeenBadge &badge, Findings &findings) {
    if (badge.parts.empty()) return; // its icon is on a page that is not to be seen
    auto part = [&](auto wanted) {
        auto found = std::ranges::find_if(badge.parts, wanted);
        return found == badge.parts.end() ? nullptr : &*found;
    };
    const SeenMark *own = part([](const SeenMark &one) { return one.type == kBadge; });
    const SeenMark *mark = part([](const SeenMark &one) { return one.tag == kMark; });
    const Value &settings = moment.settings, &entry = settings[badge.application];
    const bool hides = isOn(settings, "enable") && isOn(settings, "b");
    const bool marks = hides && isOn(settings, "newb") && !(entry.isObject() && isYes(entry["badge_perapp"]));
    if (own && (own->alpha > 0) == hides)
        findings.push_back("the badge of " + badge.application +
                           (hides ? " is to be seen" : " is not to be seen"));
    if ((mark != nullptr) != marks)
        return findings.push_back(badge.application + (marks ? " has no mark" : " has a mark"));
    if (mark && !isOn(settings, "auto") && mark->tint != colourOf(settings["colors"]))
        findings.push_back("the mark of " + badge.application + " is " + mark->tint);
}

bool pulses(const Observation &seen) {
    return std::ranges::find(seen.timers, "pulse:", &SeenTimer::selector) != seen.timers.end();
}

void checkGlow(const Moment &moment, Memory &memory, Findings &findings) {
    const SeenGlow &glow = moment.now.itemGlow;
    if (!moment.now.itemPlace || !moment.now.itemVisible || !moment.before || !moment.before->itemPlace)
        return;
    // A tick and a half, in which a bar that was laid out anew gets its glow back.
    if (moment.to - moment.from < 110'000'000 || moment.call.find("restyle") != std::string::npos) return;
    if (pulses(*moment.before) && pulses(moment.now)) {
        // A bar that changes its style at an animation's end drops the glow until the next tick: when an
        // application opens, and again when it is left.
        constexpr int kMostDull = 2;
        memory.dull = glow.opacity == 0 ? memory.dull + 1 : 0;
        const bool other = glow.opacity != 1 || std::abs(glow.radius - kGlowRadius) > 0.1;
        if (memory.dull > kMostDull || (memory.dull == 0 && other))
            findings.push_back("the indicator pulses without its glow");
        if (glow.alpha < 0 || glow.alpha > 1.06) findings.push_back("the pulse has left its bounds");
    } else if (!pulses(*moment.before) && !pulses(moment.now)) {
        if (glow.opacity != 0 || glow.alpha < 0.99)
            findings.push_back("the indicator glows, and nothing makes it pulse");
    }
}

// Whatever starts a pulse asks whether there are to be any.
void checkStart(const Moment &moment, Findings &findings) {
    const bool may = isOn(moment.settings, "glow") || isOn(moment.settingsBefore, "glow");
    if (moment.before && !may && !pulses(*moment.before) && pulses(moment.now) && !moment.settingsChanged)
        findings.push_back("a pulse begins that nobody asked for");
}

} // namespace

void checkMarks(const Moment &moment, Memory &memory, Findings &findings) {
    constexpr int64_t kDrawn = 300'000'000;
    // A finger that holds a scroll view holds up the pulse.
    if (memory.scene.fingers.empty() && memory.sceneBefore.fingers.empty())
        checkGlow(moment, memory, findings);
    checkStart(moment, findings);
    if (!memory.scene.asBooted || moment.to - moment.from < kDrawn || !moment.now.display) return;
    for (const SeenBadge &badge : moment.now.badges)
        if (!badge.inFolder) checkIcon(moment, badge, findings);
}

} // namespace sim
