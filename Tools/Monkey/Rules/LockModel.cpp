#include "LockModel.hpp"

#include "Rules.hpp"
#include "Settings.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace sim {

namespace {

constexpr size_t kLength = 4;
// From the fourth digit to the end of its comparison: the dot's slow filling, and a frame or two.
constexpr int64_t kComparing = 300'000'000;
constexpr int64_t kMatch = 3; // of what the sensor says

Sure sure(bool yes) { return yes ? Sure::yes : Sure::no; }

// The file before and after: during what was done it was one of the two.
std::array<const Value *, 2> files(const Moment &moment) {
    return {&moment.settingsBefore, &moment.settings};
}

// What `answer` says of both files.
template <typename Answer>
Sure inBoth(const Moment &moment, Answer answer) {
    const Sure first = answer(moment.settingsBefore), second = answer(moment.settings);
    return first == second ? first : Sure::maybe;
}

bool hasLock(const Value &settings) {
    const Value &code = settings["password"];
    return isOn(settings, "pass") && !code.isNull() && code != Value("");
}

bool asksAlways(const Value &settings) {
    const Value &where = settings["where"];
    return !where.isString() || where.string().empty() || where.string() == "every";
}
bool asksOnLockScreen(const Value &settings) { return settings["where"] == Value("lockscreen"); }
bool asksAfterDark(const Value &settings) { return settings["where"] == Value("everyoff"); }

Sure passcodeLocked(const Moment &moment) {
    const bool now = moment.now.passcodeLocked, before = moment.before ? moment.before->passcodeLocked : now;
    return now == before ? sure(now) : Sure::maybe;
}

bool matches(const std::string &entered, const Value &settings) {
    const Value &code = settings["password"];
    if (!code.isString() || code.string().size() != entered.size()) return false;
    return std::ranges::equal(entered, code.string(), [](char one, char other) {
        return one == other || (one == '?' && other >= '0' && other <= '9');
    });
}

bool isIn(const Area &area, double x, double y, double margin) {
    return x >= area.x - margin && x <= area.x + area.w + margin && y >= area.y - margin &&
           y <= area.y + area.h + margin;
}

// What lies at that point of a keypad that rests. At the very edge it may be missed.
Touched hit(const PanelSight &sight, double x, double y) {
    constexpr double kEdge = 1; // points
    if (std::isnan(x) || std::isnan(y)) return {.what = Touched::What::anything};
    for (const auto &[digit, area] : sight.keys)
        if (isIn(area, x, y, kEdge)) return {Touched::What::digit, digit, isIn(area, x, y, -kEdge)};
    if (sight.keypad && isIn(sight.button, x, y, kEdge))
        return {Touched::What::button, 0, isIn(sight.button, x, y, -kEdge)};
    return {};
}

} // namespace

// One look: what stood before and what stands now, and what was done between.
struct LockModel::Step {
    const Moment &moment;
    PanelSight before, now;
    std::vector<Deed> deeds;
    bool opened, alike;

    explicit Step(const Moment &given)
        : moment(given), before(given.before ? sightOf(*given.before) : PanelSight()),
          now(sightOf(given.now)), deeds(deedsOf(given.call)) {
        opened = now.phase != PanelSight::Phase::none &&
                 (before.phase == PanelSight::Phase::none || (now.open() && !before.open()));
        alike = before.open() && now.open() && before.resting && now.resting && before.keys == now.keys &&
                before.button == now.button;
    }

    // What a finger met. The first thing that is done meets what stood before; of what comes later only a
    // panel that has not moved tells.
    Touched touchedBy(const Deed &deed, bool first) const {
        const bool gone = !before.open() && (!now.open() || first);
        if (gone) return {};
        const bool known = alike || (first && before.open() && before.resting);
        if (!known)
            return {.what = before.keypad || now.keypad || !now.resting ? Touched::What::anything
                                                                        : Touched::What::nothing};
        Touched touched = hit(before, deed.x, deed.y);
        touched.certain = touched.certain && alike && deed.kind == Deed::Kind::tap;
        return touched;
    }

    // More than one thing was done that may open or close a panel, so that another may stand now than before.
    bool mayHideAnother() const {
        size_t things = 0;
        for (const Deed &deed : deeds) {
            const bool digit = alike && deed.kind == Deed::Kind::tap &&
                               hit(before, deed.x, deed.y).what == Touched::What::digit;
            if (deed.kind != Deed::Kind::wait && !digit) ++things;
        }
        return things > 1;
    }
};

void LockModel::follow(const Moment &moment) {
    if (!moment.before) *this = {};
    const Step step(moment);
    const bool doubtful = step.mayHideAnother();
    if (doubtful) doubt(moment);
    if (step.opened) openPanel(moment);
    enter(step);
    if (doubtful || moment.settingsChanged || !step.before.open() || !step.now.open()) steady_ = false;
    compare(step, moment.to);
    if (doubtful) entered_.insert("");
    goDark(moment);
}

void LockModel::arm(const Moment &moment) {
    const Sure before = armed_;
    armed_ = inBoth(moment, [&](const Value &settings) {
        if (asksAlways(settings)) return Sure::yes;
        return asksOnLockScreen(settings) ? passcodeLocked(moment) : before;
    });
}

// A panel may have opened that has never been seen, or the display may have been off.
void LockModel::doubt(const Moment &moment) {
    const Sure armed = armed_;
    arm(moment);
    const bool dark =
        moment.call.find("display") != std::string::npos || moment.call.find("lock") != std::string::npos;
    if (armed_ != armed || (dark && armed_ == Sure::no)) armed_ = Sure::maybe;
    const bool locked = armed_ == Sure::yes && hasLock(moment.settingsBefore) && hasLock(moment.settings);
    if (guarded_ != Sure::yes || !locked) guarded_ = Sure::maybe;
}

void LockModel::openPanel(const Moment &moment) {
    arm(moment);
    guarded_ = inBoth(moment, [&](const Value &settings) { return hasLock(settings) ? armed_ : Sure::no; });
    forget();
}

// What was entered into a panel counts neither for the next one nor after the dark.
void LockModel::forget() {
    entered_ = {""};
    comparing_.reset();
    steady_ = false;
    for (auto &[finger, touched] : fingers_) touched = {};
}

// It may show its list from now on, and the next panel may.
void LockModel::pass() {
    if (guarded_ == Sure::yes) guarded_ = Sure::maybe;
    if (armed_ == Sure::yes) armed_ = Sure::maybe;
}

void LockModel::enter(const Step &step) {
    int64_t at = step.moment.from;
    bool first = true;
    for (const Deed &deed : step.deeds) {
        at += deed.duration;
        compare(step, at);
        Touched touched;
        switch (deed.kind) {
        case Deed::Kind::tap:
        case Deed::Kind::touch:
            touched = step.touchedBy(deed, first);
            if (!fingers_.empty()) touched.certain = false;
            touch(touched, at);
            break;
        case Deed::Kind::down:
            fingers_[deed.number] = step.touchedBy(deed, first);
            break;
        case Deed::Kind::up:
            touched = fingers_[deed.number];
            fingers_.erase(deed.number);
            touched.certain = false;
            touch(touched, at);
            break;
        case Deed::Kind::sensor:
            if (deed.number == kMatch) sense(step, first);
            break;
        default:
            break;
        }
        first = false;
    }
}

// A key, or the button that takes the last digit back.
void LockModel::touch(const Touched &touched, int64_t at) {
    using What = Touched::What;
    if (touched.what == What::nothing) return;
    std::set<std::string> after;
    for (const std::string &text : entered_) {
        // While four are compared no digit is taken. But they may have been already, and the dots be empty.
        const bool full = text.size() == kLength;
        if (!touched.certain || full) after.insert(text);
        const std::string left = full ? "" : text;
        if (touched.what == What::digit) after.insert(left + touched.digit);
        if (touched.what == What::anything) after.insert(left + '?');
        if (touched.what == What::digit) continue;
        after.insert(left.substr(0, left.empty() ? 0 : left.size() - 1));
        // One of the four is taken out, and another may come in its place.
        if (full) pass();
    }
    const bool complete = std::ranges::any_of(
        after, [&](const std::string &text) { return text.size() == kLength && !entered_.contains(text); });
    if (complete) comparing_ = at;
    entered_ = std::move(after);
    const std::string &only = *entered_.begin();
    steady_ = entered_.size() == 1 && only.size() == kLength && only.find('?') == std::string::npos;
}

// A finger that matches counts only where the panel asks for one. In the dark nobody sees what it asks for.
void LockModel::sense(const Step &step, bool first) {
    auto mayListen = [](const PanelSight &sight, const Observation &seen) {
        return sight.open() && (sight.finger || !sight.resting || !seen.display);
    };
    const Moment &moment = step.moment;
    if (moment.before && mayListen(step.before, *moment.before)) return pass();
    if (!first && mayListen(step.now, moment.now)) pass();
}

// What the four digits come to, as soon as they may be compared and until they have been.
void LockModel::compare(const Step &step, int64_t now) {
    if (!comparing_) return;
    auto right = [&](const std::string &text) {
        return std::ranges::any_of(files(step.moment),
                                   [&](const Value *settings) { return matches(text, *settings); });
    };
    if (std::ranges::any_of(entered_, right)) pass();
    if (now <= *comparing_ + kComparing) return;
    if (steady_ && right(*entered_.begin())) {
        guarded_ = Sure::no;
        armed_ = Sure::no;
    }
    if (std::erase_if(entered_, [](const std::string &text) { return text.size() == kLength; }))
        entered_.insert("");
    comparing_.reset();
    steady_ = false;
}

void LockModel::goDark(const Moment &moment) {
    if (!moment.before || !moment.before->display || moment.now.display) return;
    const Sure before = armed_;
    armed_ =
        inBoth(moment, [&](const Value &settings) { return asksAfterDark(settings) ? Sure::yes : before; });
    if (asksAfterDark(moment.settingsBefore) && asksAfterDark(moment.settings)) forget();
}

} // namespace sim
