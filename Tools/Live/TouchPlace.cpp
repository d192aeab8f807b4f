#include "TouchPlace.hpp"

#include "Helpers.hpp"
#include "LuaText.hpp"
#include "Supervisor/Machine/SettingsDriver.hpp"
#include "ViewNames.hpp"

#include <algorithm>
#include <cmath>
#include <set>

namespace sim {

namespace {

constexpr double kNear = 12;           // points: as exactly as a finger finds the middle of something
constexpr double kNearShare = 0.25;    // of what is touched
constexpr double kMostOfScreen = 0.08; // what is larger names no place
constexpr double kAround = 30;         // points around a text that it names
constexpr double kFarthest = 60;       // from the middle of what is named
constexpr size_t kLongestName = 90;    // characters; coordinates read better

// A number of points that reads well.
double tidy(double points) { return std::round(points * 100) / 100 + 0.0; }

double area(const Value &view) { return view["screen"]["w"].number() * view["screen"]["h"].number(); }

class Naming {
public:
    Naming(LivePhone &phone, SimulatedScreen &screen, std::string_view object, double x, double y)
        : phone_(phone), screen_(screen), object_(object), x_(x), y_(y) {
        answer_ = screen_.ask("touched", {{"x", x}, {"y", y}});
    }

    TouchPlace place() {
        TouchPlace plain{.x = x_, .y = y_, .target = pointText(x_, y_), .tap = {}};
        if (answer_.isNull()) return plain;
        if (object_ == "pane")
            if (auto place = inSettings()) return *place;
        for (const auto &name : {special(), withText(), marked(0), marked(1)})
            if (auto place = placeAt(name)) return *place;
        return plain;
    }

private:
    const Array &line() const { return answer_["line"].array(); }
    const Value &touched() const { return line()[0]; }

    bool landsThere(double x, double y) {
        Value there = screen_.ask("touched", {{"x", x}, {"y", y}});
        return !there.isNull() && there["line"].array()[0]["number"] == touched()["number"];
    }

    // What has a word of its own in scripts.
    std::string special() {
        if (object_ == "pane") return "";
        for (const auto &view : line()) {
            if (answer_["window"] == Value("statusbar") && isSeenAs("phone:indicator().view", view))
                return "phone:indicator().view";
            if (auto name = panelItem(view); !name.empty()) return name;
            if (view["class"] == Value("SBIconView"))
                if (auto name = homeScreenIcon(view); !name.empty()) return name;
        }
        return "";
    }

    bool isSeenAs(const std::string &expression, const Value &view) {
        auto sight = phone_.look(expression);
        return sight && sight->number == view["number"].integer();
    }

    std::string panelItem(const Value &view) {
        if (answer_["window"] != Value("overlay") || !view["name"].isString()) return "";
        const auto &applications = phone_.device().options().applications;
        const auto &identifier = view["name"].string();
        if (!std::ranges::count(applications, identifier, [](const auto &app) { return app.identifier; }))
            return "";
        std::string name = "item(" + luaText(Helpers(phone_.device().options()).nameOf(identifier)) + ")";
        return isSeenAs(name, view) ? name : "";
    }

    std::string homeScreenIcon(const Value &view) {
        for (const auto &application : phone_.device().options().applications) {
            std::string name = "phone:icon(" + luaText(application.identifier) + ")";
            if (texts(view).contains(application.name) && isSeenAs(name, view)) return name;
        }
        return "";
    }

    // The texts in a view, and itself.
    std::set<std::string> texts(const Value &view) {
        std::set<std::string> result;
        Value found = screen_.ask("view", {{"view", view["number"]}});
        for (const auto &part : found["views"].array())
            for (const char *field : {"text", "title"})
                if (part.has(field) && part[field].isString()) result.insert(part[field].string());
        result.erase("");
        return result;
    }

    bool isLarge(const Value &view) { return area(view) > kMostOfScreen * area(line().back()); }

    bool holds(const Value &view) const {
        const Value &rect = view["screen"];
        double dx = x_ - rect["x"].number(), dy = y_ - rect["y"].number();
        return dx > -kAround && dy > -kAround && dx < rect["w"].number() + kAround &&
               dy < rect["h"].number() + kAround;
    }

    // A part of what is touched on which something is written.
    std::string withText() {
        if (isLarge(touched())) return "";
        Value found = screen_.ask("view", {{"view", touched()["number"]}});
        for (const auto &part : found["views"].array()) {
            if (!part["text"].isString() || part["text"].string().empty()) continue;
            if (!holds(part)) continue;
            Array longer{part};
            longer.insert(longer.end(), line().begin(), line().end());
            return queryFor(phone_, Object{{"window", answer_["window"]}, {"line", longer}}, 0, object_);
        }
        return "";
    }

    std::string marked(size_t place) {
        if (place + 1 >= line().size() || isLarge(line()[place])) return "";
        return queryFor(phone_, answer_, place, object_);
    }

    std::optional<TouchPlace> placeAt(const std::string &name) {
        if (name.empty() || name.size() > kLongestName) return std::nullopt;
        auto sight = phone_.look(name);
        if (!sight) return std::nullopt;
        double dx = x_ - sight->x, dy = y_ - sight->y;
        auto isNear = [&](double way, const char *side) {
            return std::abs(way) <= std::min(kNear, kNearShare * touched()["screen"][side].number());
        };
        if (isNear(dx, "w") && isNear(dy, "h") && landsThere(sight->x, sight->y))
            return TouchPlace{sight->x, sight->y, name, ""};
        if (std::max(std::abs(dx), std::abs(dy)) > kFarthest) return std::nullopt;
        dx = tidy(dx);
        dy = tidy(dy);
        return TouchPlace{
            sight->x + dx, sight->y + dy,
            "at(" + name + ", " + luaText(coordinate(dx)) + ", " + luaText(coordinate(dy)) + ")", ""};
    }

    // The call of a pane, if it would touch the same view.
    std::optional<TouchPlace> calledAt(const Value &place, const std::string &name, const Array &arguments) {
        if (place.isNull() || (place.has("area") && !SettingsDriver::isInReach(place))) return std::nullopt;
        double x = place["x"].number(), y = place["y"].number();
        if (!landsThere(x, y)) return std::nullopt;
        return TouchPlace{x, y, pointText(x, y), luaCall(name, arguments, object_)};
    }

    std::optional<TouchPlace> inSettings() {
        if (auto place = calledAt(screen_.ask("place_back"), "back", {})) return place;
        for (size_t i = 0; i < std::min<size_t>(2, line().size()); ++i)
            if (!isLarge(line()[i]))
                for (const auto &title : texts(line()[i]))
                    if (auto place =
                            calledAt(screen_.ask("place_button", {{"title", title}}), "press", {title}))
                        return place;
        if (!screen_.ask("alert").isNull()) return std::nullopt;
        Value page = screen_.ask("page");
        for (const auto &row : page["rows"].array())
            if (row["label"].isString() && !row["label"].string().empty())
                if (auto place = onRow(row)) return place;
        return std::nullopt;
    }

    Value placeOfRow(const Value &row, const Array &kinds, Object more = {}) {
        more.emplace("label", row["label"]);
        more.emplace("kinds", kinds);
        return screen_.ask("place_row", std::move(more));
    }

    std::optional<TouchPlace> onRow(const Value &row) {
        const auto &kind = row["kind"].string();
        if (kind == "link" || kind == "choice")
            return calledAt(placeOfRow(row, {"link", "choice"}), "open", {row["label"]});
        if (kind == "switch")
            return calledAt(placeOfRow(row, {"switch"}, {{"control", true}}), "toggle", {row["label"]});
        if (kind == "button" && screen_.ask("place_button", {{"title", row["label"]}}).isNull())
            return calledAt(placeOfRow(row, {"button"}), "press", {row["label"]});
        return kind == "segment" && row["choices"].isArray() ? onSegment(row) : std::nullopt;
    }

    // The control takes the touches of all its segments: the one that is meant is the nearest.
    std::optional<TouchPlace> onSegment(const Value &row) {
        std::optional<TouchPlace> nearest;
        for (const auto &title : row["choices"].array()) {
            Value place = placeOfRow(row, {"segment"}, {{"control", true}, {"segment", title}});
            if (!place.has("control")) continue;
            auto found = calledAt(place, "choose", {row["label"], title});
            if (found && (!nearest || std::abs(found->x - x_) < std::abs(nearest->x - x_))) nearest = found;
        }
        return nearest;
    }

    LivePhone &phone_;
    SimulatedScreen &screen_;
    std::string object_;
    double x_, y_;
    Value answer_;
};

} // namespace

TouchPlace placeOfTouch(LivePhone &phone, SimulatedScreen &screen, std::string_view object, double x,
                        double y) {
    try {
        return Naming(phone, screen, object, x, y).place();
    } catch (const std::runtime_error &) {
        return {.x = x, .y = y, .target = pointText(x, y), .tap = {}}; // it has crashed meanwhile
    }
}

} // namespace sim
