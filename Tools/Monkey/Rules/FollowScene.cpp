// Keeps what is remembered of badges, fingers and the panel's place up to date.
#include "Rules.hpp"
#include "Scene.hpp"
#include "Settings.hpp"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace sim {

namespace {

bool isHiddenNow(const Moment &moment, const std::string &application) {
    return isHidden(moment.settingsBefore, application) || isHidden(moment.settings, application);
}

// The badge was drawn: its application comes first, or goes.
void drawn(const Moment &moment, BadgeMemory &badges, const std::string &application, int64_t value) {
    const bool same = badges.value.contains(application) && badges.value[application] == value;
    badges.value[application] = value;
    if (same) {
        // Whether it is drawn again is the system's affair.
        badges.unordered.insert(application);
        return;
    }
    std::erase(badges.order, application);
    badges.unsure.erase(application);
    badges.unordered.erase(application);
    if (value != 0) badges.order.insert(badges.order.begin(), application);
    if (isHiddenNow(moment, application)) badges.unsure.insert(application);
}

void followBadges(const Moment &moment, BadgeMemory &badges) {
    if (moment.restarted()) {
        badges = {};
        for (const SeenBadge &badge : moment.now.badges) {
            drawn(moment, badges, badge.application, badge.value);
            badges.unordered.insert(badge.application);
        }
    } else {
        for (const auto &event : moment.events)
            if (event["kind"] == Value("badge_set"))
                drawn(moment, badges, event["id"].string(),
                      event["value"].isNumber() ? static_cast<int64_t>(event["value"].number()) : 1);
    }
    for (const SeenBadge &badge : moment.now.badges) {
        // A folder draws one badge for all that it holds, and lists them anew.
        if (badge.inFolder) badges.unordered.insert(badge.application);
        if (isHiddenNow(moment, badge.application)) badges.unsure.insert(badge.application);
    }
}

// Fingers stay down from "down" to "up"; the dark takes them all.
void followFingers(const Moment &moment, std::set<int> &fingers) {
    int number = 1;
    if (moment.call.find("phone:down(") != std::string::npos) {
        const char *last = std::strrchr(moment.call.c_str(), ',');
        if (last && std::sscanf(last, ", %d)", &number) == 1)
            fingers.insert(number);
        else
            fingers.insert(1);
    }
    if (std::sscanf(moment.call.c_str(), "phone:up(%d)", &number) == 1) fingers.erase(number);
    if (moment.call == "phone:up()") fingers.erase(1);
    if (moment.restarted() || !moment.now.display) fingers.clear();
}

void followPlace(const Moment &moment, SceneMemory &memory) {
    int orientation = 1;
    if (std::sscanf(moment.call.c_str(), "phone:rotate(%d)", &orientation) == 1)
        memory.upright = orientation == 1;
    std::vector<Area> places;
    std::optional<Scene> scene = sceneOf(moment.now);
    if (scene) {
        places.push_back(scene->panel);
        for (const SceneItem &item : scene->items) places.push_back(item.place);
    }
    // The panel follows the indicator, a little later.
    if (moment.now.itemPlace) places.push_back(*moment.now.itemPlace);
    if (!(places == memory.places) || (scene && scene->moving)) memory.steadySince = moment.to;
    memory.places = std::move(places);
    memory.mixed = scene && (memory.mixed || moment.settingsChanged);
}

} // namespace

void followScene(const Moment &moment, SceneMemory &memory) {
    if (moment.restarted())
        memory.asBooted = true;
    else if (moment.settingsChanged)
        memory.asBooted = false;
    if (moment.settingsChanged) memory.settingsAt = moment.to;
    for (const char *touch : {":tap", ":hold", ":drag", ":fling", ":down", ":move", ":up"})
        if (moment.call.find(touch) != std::string::npos)
            memory.touchedAt = moment.to - (moment.call.ends_with(" phone:wait(1.5)") ? 1'500'000'000 : 0);
    followBadges(moment, memory.badges);
    followFingers(moment, memory.fingers);
    followPlace(moment, memory);
}

std::optional<Scene> sceneBeforeAct(const Moment &moment, const SceneMemory &then, const SceneMemory &now) {
    constexpr int64_t kRested = 300'000'000;
    if (!moment.before || moment.settingsChanged || !moment.call.ends_with(" phone:wait(1.5)"))
        return std::nullopt;
    std::optional<Scene> scene = sceneOf(*moment.before);
    if (!scene || scene->moving || then.mixed || !then.upright || !then.fingers.empty() ||
        !now.fingers.empty())
        return std::nullopt;
    const bool rested = moment.from - then.steadySince >= kRested && moment.from - then.touchedAt >= kRested;
    return rested && moment.before->display ? scene : std::nullopt;
}

std::optional<Scene> sceneAtRest(const Moment &moment, const SceneMemory &memory) {
    constexpr int64_t kRested = 300'000'000;
    std::optional<Scene> scene = sceneOf(moment.now);
    const bool still = scene && !scene->moving && moment.to - memory.steadySince >= kRested;
    if (!still || memory.mixed || !memory.upright || !memory.fingers.empty() || !moment.now.display)
        return std::nullopt;
    return scene;
}

} // namespace sim
