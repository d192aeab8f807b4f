#include "LiveDevice.hpp"

#include "LuaText.hpp"
#include "Supervisor/Text/Readable.hpp"
#include "ViewNames.hpp"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace sim {

namespace {

// What a recording holds of a change of the screen: nothing happens to the device.
constexpr const char *kHomeShown = "-- The home screen is shown.";
constexpr const char *kSettingsShown = "-- Settings is shown.";
constexpr const char *kOpening = "pane = phone:open_settings()";

} // namespace

void LiveDevice::boot(const Value &options) {
    checkBootOptions(setup_, options);
    journal_ = std::make_unique<Journal>(options);
    replay_.reset();
    start(options);
    helpers_.emplace(this->options());
}

void LiveDevice::start(const Value &options) {
    ++boots_;
    turned_ = 1;
    settings_ = false;
    // The old one goes first: both may keep their files in one folder.
    phone_.reset();
    try {
        phone_ = std::make_unique<LivePhone>(setup_, options);
        trouble_.clear();
        phone_->run(Helpers(this->options()).statements());
    } catch (const BootError &error) {
        trouble_ = error.what();
        throw;
    }
}

// A home screen that cannot be started again leaves a device that is of no use.
void LiveDevice::guard(auto &&work) {
    try {
        work();
    } catch (const RequestError &error) {
        trouble_ = error.what();
        replay_.reset();
        phone_.reset();
    }
}

void LiveDevice::checkReady() const {
    if (!phone_) throw CallError("there is no device: " + trouble_);
    if (replay_) throw CallError("a replay is under way");
}

void LiveDevice::perform(const std::string &action, const Array &arguments) {
    checkReady();
    if (!isAction(action)) throw CallError("'" + action + "' is no call for people");
    std::string call;
    try {
        call = luaCall(action, arguments);
    } catch (const ValueError &error) {
        throw CallError(error.what());
    }
    if (leavesSettings(action)) {
        show(false);
        if (action == "home") return;
    }
    // People turn the whole device.
    if (action == "rotate" && phone_->settings()) call += " " + luaCall(action, arguments, "pane");
    record(std::move(call));
}

SimulatedScreen *LiveDevice::screen() {
    if (showsSettings()) return phone_->settings();
    return device();
}

void LiveDevice::show(bool settings) {
    checkReady();
    if (settings == showsSettings()) return;
    if (!settings) return record(kHomeShown);
    if (phone_->settings()) return record(kSettingsShown);
    std::string call = kOpening;
    if (turned_ != 1) call += " " + luaCall("rotate", {turned_}, "pane");
    record(std::move(call));
}

bool LiveDevice::leavesSettings(const std::string &action) const {
    static const char *const names[] = {"activator",  "banner", "display", "finger", "home",
                                        "home_twice", "lock",   "run",     "unlock"};
    return showsSettings() && std::ranges::count(names, action) > 0;
}

void LiveDevice::record(std::string call) {
    int64_t time = now();
    phone_->run(call);
    note(call);
    journal_->add(time, std::move(call));
}

void LiveDevice::note(const std::string &call) {
    if (call == kHomeShown) settings_ = false;
    if (call == kSettingsShown || call.starts_with(kOpening)) settings_ = true;
    int orientation = 0;
    if (std::sscanf(call.c_str(), "phone:rotate(%d)", &orientation) == 1) turned_ = orientation;
}

TouchPlace LiveDevice::touchDown(double x, double y, int64_t finger) {
    checkReady();
    int64_t time = now();
    TouchPlace place = placeOfTouch(*phone_, *screen(), object(), x, y);
    phone_->run(touchCall(object(), "down", place.target, std::to_string(finger)));
    if (helpers_->use(place.target)) journal_->setPrelude(helpers_->lines());
    journal_->addDown(time, place.target, finger, object(), place.tap);
    return place;
}

Value LiveDevice::pick(double x, double y) {
    checkReady();
    Value seen = screen()->ask("seen", {{"x", x}, {"y", y}});
    if (seen.isNull()) return {};
    const Value &view = seen["line"].array()[0];
    return Object{{"query", queryFor(*phone_, seen, 0, object())},
                  {"class", view["class"]},
                  {"screen", view["screen"]}};
}

void LiveDevice::touchMove(double x, double y, int64_t finger) {
    checkReady();
    int64_t time = now();
    phone_->run(luaCall("move", {x, y, finger}, object()));
    journal_->addMove(time, x, y, finger, object());
}

void LiveDevice::touchUp(int64_t finger) {
    checkReady();
    int64_t time = now();
    phone_->run(luaCall("up", {finger}, object()));
    journal_->addUp(time, finger, object());
}

void LiveDevice::advance(int64_t to) {
    guard([&] {
        if (replay_) return replayUntil(to);
        if (phone_) phone_->device().advance(std::max<int64_t>(0, to - now()));
    });
}

void LiveDevice::startReplay() {
    checkReady();
    auto replay = std::make_unique<Replay>();
    guard([&] {
        replay->end = now();
        replay->events = phone_->device().events().all();
        replay->picture = screen()->picture();
    });
    verdict_.reset();
    start(journal_->options());
    replay_ = std::move(replay);
}

void LiveDevice::replayUntil(int64_t to) {
    SimulatedDevice &device = phone_->device();
    to = std::min(to, replay_->end);
    const auto &steps = journal_->steps();
    for (; replay_->next < steps.size() && steps[replay_->next].time <= to; ++replay_->next) {
        const auto &step = steps[replay_->next];
        if (step.time > device.now()) device.advance(step.time - device.now());
        try {
            phone_->run(step.call);
            note(step.call);
        } catch (const CallError &error) {
            verdict_ = "'" + step.call + "' was refused: " + error.what();
        }
    }
    if (to > device.now()) device.advance(to - device.now());
    if (device.now() >= replay_->end) finishReplay();
}

void LiveDevice::finishReplay() {
    auto replay = std::move(replay_);
    if (verdict_) return;
    auto difference = firstDifference(phone_->device().events().all(), replay->events);
    if (difference) {
        verdict_ = "the events differ: " + *difference;
    } else {
        verdict_ = screen()->picture() == replay->picture ? "" : "the pictures differ";
    }
}

std::optional<std::string> LiveDevice::takeVerdict() {
    if (replay_) return std::nullopt;
    return std::exchange(verdict_, std::nullopt);
}

} // namespace sim
