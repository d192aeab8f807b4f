#include "Hand.hpp"

#include "BootTable.hpp"
#include "Tools/Live/LuaText.hpp"

#include <cstdio>
#include <utility>

namespace sim {

Hand::Hand(Random &random, LivePhone &phone, const std::optional<PaneSight> &pane, const Value &boot)
    : random(random), phone(phone), pane(pane), applications(applicationsOf(boot)),
      generation_(phone.device().generation()) {
    const Profile &profile = *phone.device().options().profile;
    width = profile.width;
    height = profile.height;
    locked = boot.has("passcode_locked");
    enabled = boot["settings"]["enable"] == Value(true);
}

void Hand::refresh() {
    snapshot = look(phone);
    locked = phone.device().options().passcodeLocked;
    settingsOpen = phone.settings() != nullptr;
    // A home screen that starts anew knows of no finger.
    if (std::exchange(generation_, phone.device().generation()) != generation_) {
        fingers.clear();
        dark = false;
        turn(1);
    }
}

void Hand::turn(int orientation) {
    if ((orientation > 2) != (width > height)) std::swap(width, height);
}

void Hand::note(const std::string &line) {
    int number = 0;
    if (std::sscanf(line.c_str(), "phone:rotate(%d)", &number) == 1) turn(number);
    if (line == "phone:display(false)") dark = true;
    if (line == "phone:display(true)" || line.starts_with("phone:home")) dark = false;
    if (line == "phone:lock()") dark = !dark;
    if (line == "phone:delete_settings()" || line.starts_with("phone:settings_text")) enabled = false;
    if (line.starts_with("phone:set(\"enable\"")) enabled = line.find("true") != line.npos;
    if (line.find("phone:set{") != line.npos && line.find("enable = ") != line.npos)
        enabled = line.find("enable = true") != line.npos;
}

Place anywhere(Hand &hand) {
    auto along = [&](double length) {
        if (hand.random.percent(4)) return hand.random.pick({0.0, 0.5, length - 0.5, length - 1});
        return static_cast<double>(hand.random.between(0, static_cast<int64_t>(length) * 2 - 1)) / 2;
    };
    double x = along(hand.width);
    return {x, along(hand.height), 0};
}

std::string numberText(double number) {
    auto whole = static_cast<int64_t>(number);
    return static_cast<double>(whole) == number ? std::to_string(whole) : luaText(number);
}

std::string pointText(const Place &place) {
    return "{" + numberText(place.x) + ", " + numberText(place.y) + "}";
}

} // namespace sim
