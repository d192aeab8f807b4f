#include "Viewers.hpp"

#include "Messages.hpp"
#include "Runtime/Values/Json.hpp"

#include <utility>

namespace sim {

namespace {

// More would only make what is shown older; on a slow line, whose answers take long, fewer would leave it
// idle.
constexpr uint32_t kFramesUnderWay = 3, kPackedUnderWay = 6;
double seconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

constexpr size_t kOldEvents = 2000; // of what happened before it came, a page gets no more

} // namespace

void Viewers::tell(WebServer::Client client, const Value &message) {
    server_.sendText(client, toJson(message));
}

void Viewers::tellAll(const Value &message) {
    std::string text = toJson(message);
    for (const auto &[client, viewer] : viewers_) server_.sendText(client, text);
}

void Viewers::add(WebServer::Client client, const Value &welcome) {
    // Everybody is at one point, from which the new one goes on.
    if (!viewers_.empty()) update(false);
    Viewer &viewer = viewers_[client];
    viewer.packing = Packing(pack_, seconds());
    tell(client, welcome);
    tell(client, deviceMessage(device_));
    tell(client, scriptMessage(device_.journal(), 0));
    if (SimulatedDevice *device = device_.device()) {
        size_t count = device->events().size();
        tell(client, eventsMessage(device->events(), count > kOldEvents ? count - kOldEvents : 0));
        tell(client, settingsMessage(device->settings()));
    }
    views_.clear();
    counters_.clear();
    state_.clear();
    viewer.unseen.reset(screen_.width, screen_.height);
    if (viewers_.size() > 1) return;
    // Nobody was told while nobody was there.
    known_ = known();
    if (device_.device()) events_ = device_.device()->events().size();
    device_.journal().takeChange();
}

void Viewers::acknowledge(WebServer::Client client, int64_t frame) {
    auto found = viewers_.find(client);
    if (found == viewers_.end()) return;
    Viewer &viewer = found->second;
    bool sensible = frame > viewer.seen && frame <= viewer.sent;
    if (!sensible) return;
    viewer.seen = static_cast<uint32_t>(frame);
    viewer.packing.seen(viewer.seen, seconds());
}

void Viewers::watch(WebServer::Client client, bool views, bool counters) {
    auto found = viewers_.find(client);
    if (found == viewers_.end()) return;
    found->second.views = views;
    found->second.counters = counters;
    views_.clear();
    counters_.clear();
}

void Viewers::update(bool thorough) {
    tellDevice();
    tellScript();
    if (!device_.device()) return;
    tellEvents();
    tellSettings();
    showScreen();
    // Again, for the page must know how the interface lies before it gets the picture.
    tellDevice();
    if (thorough) tellWatched();
    sendFrames();
}

Viewers::Known Viewers::known() const {
    Known now{.boots = device_.boots()};
    if (SimulatedDevice *device = device_.device()) {
        now.running = true;
        now.generation = device->generation();
        now.turned = device_.turned();
        now.interface = device_.screen()->interfaceOrientation();
        now.settings = device_.showsSettings();
    }
    return now;
}

void Viewers::tellDevice() {
    Known before = std::exchange(known_, known());
    if (known_ == before) return;
    if (known_.boots != before.boots) {
        events_ = 0;
        settings_.clear();
    }
    tellAll(deviceMessage(device_));
}

void Viewers::tellEvents() {
    const EventList &events = device_.device()->events();
    if (events.size() <= events_) return;
    tellAll(eventsMessage(events, events_));
    events_ = events.size();
}

void Viewers::tellScript() {
    size_t from = device_.journal().takeChange();
    if (from < device_.journal().lines().size()) tellAll(scriptMessage(device_.journal(), from));
}

void Viewers::tellNews(std::string &before, const Value &message, bool Viewer::*wanted) {
    std::string text = toJson(message);
    if (text == before) return;
    for (const auto &[client, viewer] : viewers_)
        if (!wanted || viewer.*wanted) server_.sendText(client, text);
    before = std::move(text);
}

void Viewers::tellSettings() {
    // Looked at only when the file is another one, or another time is written on it.
    std::string state = device_.device()->settings().state();
    if (state == settingsState_ && !settings_.empty()) return;
    settingsState_ = std::move(state);
    tellNews(settings_, settingsMessage(device_.device()->settings()), nullptr);
}

void Viewers::tellWatched() {
    bool views = false, counters = false;
    for (const auto &[client, viewer] : viewers_) {
        views = views || viewer.views;
        counters = counters || viewer.counters;
    }
    tellNews(state_, stateMessage(*device_.device()), nullptr);
    if (views) tellNews(views_, viewsMessage(*device_.screen()), &Viewer::views);
    if (counters) tellNews(counters_, countersMessage(*device_.screen()), &Viewer::counters);
}

void Viewers::showScreen() {
    // The two screens know nothing of each other's pictures.
    bool settings = device_.showsSettings();
    if (std::exchange(ofSettings_, settings) != settings) screen_ = {};
    int width = screen_.width, height = screen_.height;
    auto areas = device_.screen()->refresh(screen_);
    bool resized = width != screen_.width || height != screen_.height;
    for (auto &[client, viewer] : viewers_) {
        if (resized) viewer.unseen.reset(screen_.width, screen_.height);
        for (const auto &area : areas) viewer.unseen.add(area);
    }
}

void Viewers::sendFrames() {
    for (auto &[client, viewer] : viewers_) {
        if (viewer.unseen.empty()) continue;
        uint32_t most = viewer.packing.packs() ? kPackedUnderWay : kFramesUnderWay;
        if (viewer.sent - viewer.seen < most) {
            sendFrame(client, viewer);
        } else {
            viewer.packing.heldUp(seconds());
        }
    }
}

void Viewers::sendFrame(WebServer::Client client, Viewer &viewer) {
    std::string frame = encodeFrame(screen_, viewer.unseen.take(), ++viewer.sent);
    if (viewer.packing.packs()) frame = packFrame(frame);
    viewer.packing.sent(viewer.sent, seconds());
    server_.sendBytes(client, std::move(frame));
}

} // namespace sim
