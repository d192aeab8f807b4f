#include "LiveSession.hpp"

#include "Messages.hpp"
#include "PageFiles.hpp"
#include "Runtime/Values/Json.hpp"
#include "Runtime/Values/Nanoseconds.hpp"
#include "Supervisor/Machine/Interrupt.hpp"

#include <algorithm>
#include <fstream>
#include <utility>

namespace sim {

namespace {

using namespace std::chrono_literals;

constexpr auto kFrame = std::chrono::nanoseconds(kSecond / 60);
constexpr auto kIdle = 250ms;          // how soon an interrupt is noticed, at the latest
constexpr auto kThoroughEvery = 250ms; // between looks at views and counters
constexpr auto kHurryFor = 12ms;       // of a tick, in a replay that hurries
constexpr auto kLetGo = 100ms;         // that a press may be longer than a tap
constexpr int64_t kMostSteps = 600;    // frames, in one request

double seconds(std::chrono::steady_clock::duration duration) {
    return std::chrono::duration<double>(duration).count();
}

std::chrono::steady_clock::time_point now() { return std::chrono::steady_clock::now(); }

// What a person sees who has asked for nothing: the extension at work.
const std::pair<const char *, int> kTourBadges[] = {
    {"com.apple.mobilemail", 3}, {"com.apple.MobileSMS", 12}, {"com.apple.mobilephone", 1}};

Value tourOptions() {
    return Object{{"settings", Object{{"enable", true}, {"glow", true}, {"hide_t", true}, {"tint", "cyan"}}}};
}

// Nothing that must be done in the handler: the loop looks often enough.
void wake() {}

} // namespace

struct LiveSession::Command {
    const char *name;
    void (LiveSession::*obey)(Client client, const Value &message);
};

const LiveSession::Command *LiveSession::findCommand(const std::string &name) {
    static const Command commands[] = {
        {"down", &LiveSession::touchDown},   {"move", &LiveSession::touchMove},
        {"up", &LiveSession::touchUp},       {"call", &LiveSession::call},
        {"show", &LiveSession::show},        {"boot", &LiveSession::boot},
        {"clock", &LiveSession::setClock},   {"step", &LiveSession::step},
        {"replay", &LiveSession::replay},    {"script", &LiveSession::sendScript},
        {"seen", &LiveSession::acknowledge}, {"watch", &LiveSession::watch},
        {"pick", &LiveSession::pick},        {"alive", &LiveSession::stayInTouch}};
    auto found = std::ranges::find_if(commands, [&](const Command &command) { return name == command.name; });
    return found == std::end(commands) ? nullptr : found;
}

LiveSession::LiveSession(DeviceSetup setup, LiveOptions options)
    : setup_(std::move(setup)), options_(std::move(options)), device_(setup_),
      server_(options_.port, readPageFiles(setup_.installation.page)),
      viewers_(server_, device_, options_.pack), fingers_(device_) {
    clock_.setSpeed(options_.speed);
    if (options_.tour) options_.boot = tourOptions();
    bootDevice();
}

// Badges are part of the tour, whatever device it is seen on.
void LiveSession::bootDevice() {
    device_.boot(options_.boot);
    if (!options_.tour) return;
    for (const auto &[identifier, number] : kTourBadges) device_.perform("badge", {identifier, number});
}

std::string LiveSession::greeting() const {
    if (!options_.tour) return "";
    return "Three applications carry badges: tap the indicator at the right of the status bar.";
}

std::string LiveSession::address() const {
    return "http://127.0.0.1:" + std::to_string(server_.port()) + "/";
}

void LiveSession::run() {
    watchInterrupts(wake, setup_.debugger);
    tick_ = passed_ = looked_ = now();
    while (!interrupted()) {
        for (const auto &message : server_.receive(tick_, !isBusy())) take(message);
        passTime();
        if (!viewers_.empty()) look();
        waitForTick();
    }
    if (!options_.script.empty()) writeScript();
}

// Whether something happens without being asked for. Time stands still while nobody looks.
bool LiveSession::isBusy() const { return !viewers_.empty() && (clock_.runs() || device_.replays()); }

void LiveSession::waitForTick() { tick_ = isBusy() ? std::max(tick_ + kFrame, now()) : now() + kIdle; }

void LiveSession::take(const WebServer::Message &message) {
    try {
        switch (message.kind) {
        case WebServer::Message::Kind::opened:
            viewers_.add(message.client, helloMessage(setup_, greeting()));
            viewers_.tell(message.client, clockMessage());
            break;
        case WebServer::Message::Kind::closed:
            viewers_.remove(message.client);
            fingers_.liftAll(message.client);
            break;
        case WebServer::Message::Kind::text:
            obey(message.client, message.text);
        }
    } catch (const std::runtime_error &error) {
        viewers_.tell(message.client, noticeMessage(error.what()));
    }
}

void LiveSession::obey(Client client, const std::string &text) {
    Value message;
    try {
        message = parseJson(text);
    } catch (const ValueError &) {
        throw CallError("a message that is no JSON was not understood");
    }
    if (!message["do"].isString()) throw CallError("a message without a \"do\" was not understood");
    const Command *command = findCommand(message["do"].string());
    if (!command) throw CallError("there is nothing called '" + message["do"].string() + "' to do");
    try {
        (this->*command->obey)(client, message);
    } catch (const ValueError &error) {
        throw CallError(std::string("'") + command->name + "' was not understood: " + error.what());
    }
}

void LiveSession::touchDown(Client client, const Value &message) {
    fingers_.down({client, message["pointer"].integer()}, message["x"].number(), message["y"].number());
}

void LiveSession::touchMove(Client client, const Value &message) {
    fingers_.move({client, message["pointer"].integer()}, message["x"].number(), message["y"].number());
}

void LiveSession::touchUp(Client client, const Value &message) {
    fingers_.up({client, message["pointer"].integer()});
}

void LiveSession::call(Client, const Value &message) {
    // In the order in which it was done.
    fingers_.commit();
    if (device_.leavesSettings(message["call"].string())) fingers_.liftAll();
    const Value &arguments = message["arguments"];
    device_.perform(message["call"].string(), arguments.isNull() ? Array{} : arguments.array());
}

// {"screen": "home" or "settings"}
void LiveSession::show(Client, const Value &message) {
    const std::string &screen = message["screen"].string();
    if (screen != "home" && screen != "settings") throw CallError("there is no screen '" + screen + "'");
    fingers_.liftAll();
    device_.show(screen == "settings");
}

// {"options": those that change; null takes the usual value again}
void LiveSession::boot(Client, const Value &message) {
    Object options = options_.boot.isObject() ? options_.boot.object() : Object{};
    if (message.has("options"))
        for (const auto &[name, value] : message["options"].object()) {
            options.erase(name);
            if (!value.isNull()) options.emplace(name, value);
        }
    checkBootOptions(setup_, options);
    viewers_.tellAll(Object{{"kind", "booting"}});
    fingers_.clear();
    options_.boot = options;
    bootDevice();
}

// {"speed"}: 0 stops it, 1 is real time
void LiveSession::setClock(Client, const Value &message) {
    clock_.setSpeed(message["speed"].number());
    viewers_.tellAll(clockMessage());
}

// {"frames"}
void LiveSession::step(Client, const Value &message) {
    int64_t frames = message["frames"].integer();
    if (frames < 1 || frames > kMostSteps)
        throw CallError("a step is 1 to " + std::to_string(kMostSteps) + " frames");
    fingers_.commit();
    while (frames > 0) {
        int64_t part = fingers_.atMost(frames);
        advance(part);
        fingers_.commit();
        frames -= part;
    }
}

// {"hurry": true for as fast as it goes}
void LiveSession::replay(Client, const Value &message) {
    hurry_ = message.has("hurry") && message["hurry"].boolean();
    viewers_.tellAll(Object{{"kind", "booting"}});
    fingers_.clear();
    device_.startReplay();
    viewers_.tellAll(clockMessage());
}

void LiveSession::sendScript(Client client, const Value &) {
    viewers_.tell(client, Object{{"kind", "whole-script"},
                                 {"now", device_.now()},
                                 {"text", device_.journal().script(device_.now())}});
}

void LiveSession::acknowledge(Client client, const Value &message) {
    viewers_.acknowledge(client, message["frame"].integer());
}

void LiveSession::watch(Client client, const Value &message) {
    viewers_.watch(client, message["views"].boolean(), message["counters"].boolean());
    looked_ = {};
}

// A page hears nothing of a server that is gone without a word.
void LiveSession::stayInTouch(Client client, const Value &) {
    viewers_.tell(client, Object{{"kind", "alive"}});
}

// {"x", "y"}: of the pointer
void LiveSession::pick(Client client, const Value &message) {
    viewers_.tell(client, Object{{"kind", "picked"},
                                 {"view", device_.pick(message["x"].number(), message["y"].number())}});
}

Value LiveSession::clockMessage() {
    return Object{
        {"kind", "clock"}, {"speed", clock_.speed()}, {"replays", device_.replays()}, {"now", device_.now()}};
}

void LiveSession::advance(int64_t frames) { device_.advance(frameAfter(device_.now(), frames)); }

// A person's press is seldom as short as a tap: the device waits a moment for its end, so that it is one.
bool LiveSession::waitsForLift() {
    if (!fingers_.mayBeTap())
        ripe_.reset();
    else if (!ripe_)
        ripe_ = now();
    return ripe_ && now() - *ripe_ < kLetGo;
}

void LiveSession::passTime() {
    auto before = std::exchange(passed_, now());
    if (viewers_.empty()) return;
    try {
        if (clock_.runs())
            fingers_.follow();
        else
            fingers_.commit();
    } catch (const CallError &error) {
        viewers_.tellAll(noticeMessage(error.what()));
    }
    if (hurry_ && device_.replays()) {
        while (device_.replays() && now() - passed_ < kHurryFor) advance(1);
    } else if (int64_t frames = clock_.pass(seconds(passed_ - before)); frames > 0 && !waitsForLift()) {
        advance(fingers_.atMost(frames));
    }
    if (auto verdict = device_.takeVerdict()) {
        viewers_.tellAll(
            Object{{"kind", "replayed"}, {"difference", verdict->empty() ? Value() : Value(*verdict)}});
        viewers_.tellAll(clockMessage());
    }
}

// While time passes by itself the page counts on, and is put right now and then.
void LiveSession::tellTime(bool thorough) {
    if (device_.now() == told_ || (isBusy() && !thorough)) return;
    told_ = device_.now();
    viewers_.tellAll(Object{{"kind", "time"}, {"now", told_}});
}

void LiveSession::look() {
    bool thorough = now() - looked_ >= kThoroughEvery;
    if (thorough) looked_ = now();
    try {
        tellTime(thorough);
        viewers_.update(thorough);
    } catch (const RequestError &) {
        // It died while it was looked at, and was started again; or it cannot be, and this notices.
        device_.advance(device_.now());
    }
}

void LiveSession::writeScript() {
    if (!(std::ofstream(options_.script, std::ios::binary) << device_.journal().script(device_.now()))
             .flush())
        throw std::runtime_error("cannot write " + options_.script.string());
}

} // namespace sim
