#include "SettingsDriver.hpp"

#include "Runtime/Values/Nanoseconds.hpp"
#include "SimulatedProcess.hpp"
#include "Supervisor/Text/Suggest.hpp"

#include <algorithm>
#include <cmath>

namespace sim {

namespace {

// Seconds that a finger waits for what moves; some pages never rest.
constexpr double kPatience = 2;
constexpr double kEdge = 30; // points between a row and the end of what can be seen

const std::vector<std::string> kAll = {"switch", "link", "choice", "segment", "button", "text"};

Array list(const std::vector<std::string> &words) { return Array(words.begin(), words.end()); }

// The characters of UTF-8 text.
std::vector<std::string> characters(const std::string &text) {
    std::vector<std::string> result;
    for (char byte : text) {
        bool continues = (static_cast<unsigned char>(byte) & 0xc0) == 0x80;
        if (continues && !result.empty()) {
            result.back() += byte;
        } else {
            result.emplace_back(1, byte);
        }
    }
    return result;
}

} // namespace

void SettingsDriver::rest() {
    try {
        settings_.settle(fromSeconds(kPatience));
    } catch (const SettleError &) {}
}

Value SettingsDriver::find(const std::string &label, const std::vector<std::string> &kinds, Object more) {
    more.insert_or_assign("label", label);
    more.insert_or_assign("kinds", list(kinds));
    return settings_.ask("place_row", std::move(more));
}

void SettingsDriver::tapAt(const Value &place) {
    finger_.tap({.view = {}, .x = place["x"].number(), .y = place["y"].number()});
}

bool SettingsDriver::isInReach(const Value &place) {
    const Value &area = place["area"];
    double top = area["y"].number(), y = place["y"].number();
    return y > top + kEdge && y < top + area["h"].number() - kEdge;
}

Value SettingsDriver::bringOnScreen(const std::string &label, const std::vector<std::string> &kinds,
                                    const Object &more) {
    constexpr int kMostDrags = 60;
    for (int drags = 0;; ++drags) {
        Value place = find(label, kinds, more);
        if (place.isNull()) {
            std::vector<std::string> known;
            Value page = settings_.ask("page");
            for (const auto &row : page["rows"].array()) known.push_back(row["label"].string());
            bool other = !find(label, kAll, {}).isNull();
            throw RequestError(other ? "the row '" + label + "' is of another kind"
                                     : "the page has no row '" + label + "'" + suggestion(label, known));
        }
        const Value &area = place["area"];
        double top = area["y"].number(), height = area["h"].number(), y = place["y"].number();
        if (isInReach(place) || drags == kMostDrags) return place;
        double way = std::clamp(top + height / 2 - y, -0.7 * height, 0.7 * height);
        // At the very side there is no control that would follow the finger.
        TouchTarget start{
            .view = {}, .x = area["x"].number() + 6, .y = top + height * (way > 0 ? 0.15 : 0.85)};
        double before = y;
        finger_.drag(start, 0, way, 0.3);
        rest();
        Value after = find(label, kinds, more);
        // At the end of the content rows stand nearer to the edge.
        if (!after.isNull() && std::abs(after["y"].number() - before) < 1) return after;
    }
}

void SettingsDriver::open(const std::string &label) { tapAt(bringOnScreen(label, {"link", "choice"}, {})); }

void SettingsDriver::toggle(const std::string &label) {
    tapAt(bringOnScreen(label, {"switch"}, {{"control", true}}));
}

void SettingsDriver::choose(const std::string &label, const std::string &title) {
    Value page = settings_.ask("page");
    bool there = page["title"] == Value(label) && find(label, kAll, {}).isNull();
    if (!there) {
        Value row = bringOnScreen(label, {"choice", "segment"}, {});
        if (row["kind"] == Value("segment")) {
            Value place = find(label, {"segment"}, {{"control", true}, {"segment", title}});
            if (!place.has("control"))
                throw RequestError("the row '" + label + "' has no segment '" + title + "'");
            return tapAt(place);
        }
        tapAt(row);
        rest();
    }
    tapAt(bringOnScreen(title, {"button"}, {}));
}

void SettingsDriver::press(const std::string &title) {
    Value place = settings_.ask("place_button", {{"title", title}});
    if (!place.isNull()) return tapAt(place);
    if (!settings_.ask("alert").isNull()) throw RequestError("the alert has no button '" + title + "'");
    tapAt(bringOnScreen(title, {"button"}, {}));
}

void SettingsDriver::back() {
    Value place = settings_.ask("place_back");
    if (place.isNull()) throw RequestError("the page has no way back");
    tapAt(place);
}

bool SettingsDriver::tapKey(const std::string &text) {
    Value place = settings_.ask("place_key", {{"text", text}});
    if (place.isNull()) return false;
    tapAt(place);
    return true;
}

void SettingsDriver::type(const std::string &text) {
    // A person waits until the keyboard is there.
    rest();
    for (const auto &character : characters(text))
        if (!tapKey(character)) settings_.act("type", {{"text", character}});
}

void SettingsDriver::erase(int64_t count) {
    rest();
    for (int64_t i = 0; i < count; ++i)
        if (!tapKey("")) settings_.act("delete");
}

void SettingsDriver::swipe(bool left) {
    constexpr double kShare = 0.6, kSeconds = 0.2;
    Value cards = settings_.ask("place_cards");
    if (cards.isNull()) throw RequestError("the page has no cards to swipe");
    double width = cards["w"].number(), way = kShare * width;
    double x = cards["x"].number() + width / 2 + (left ? way : -way) / 2;
    TouchTarget start{.view = {}, .x = x, .y = cards["y"].number() + cards["h"].number() / 2};
    finger_.fling(start, left ? -way : way, 0, kSeconds);
}

} // namespace sim
