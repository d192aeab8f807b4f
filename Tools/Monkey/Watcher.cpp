#include "Watcher.hpp"

#include "Tools/Monkey/Rules/PanelSight.hpp"

#include <utility>

namespace sim {

namespace {

// What VoiceOver would read of the overlay, which is asked as long as a face of the lock can be seen.
std::vector<std::string> spokenIn(SimulatedDevice &device, const Observation &seen) {
    std::vector<std::string> words;
    if (!sightOf(seen).face()) return words;
    const Value answer = device.ask("spoken", Object{{"window", "overlay"}});
    for (const Value &element : answer["elements"].array())
        for (const char *part : {"label", "value"})
            if (element[part].isString()) words.push_back(element[part].string());
    return words;
}

} // namespace

Watcher::Watcher(LivePhone &phone) : phone_(phone) {
    time_ = phone_.device().now();
    settingsChanged();
}

void Watcher::meetHomeScreen() {
    SimulatedDevice &device = phone_.device();
    generation_ = device.generation();
    last_.reset();
    reader_ = {};
    // What a restart of the home screen does not change.
    Memory kept;
    kept.scene.upright = memory_.scene.upright;
    kept.pane = std::move(memory_.pane);
    kept.gate = memory_.gate;
    memory_ = std::move(kept);
    Value missing = device.ask("watch", watchArguments());
    if (!missing.array().empty())
        throw std::runtime_error("the extension has no variable '" + missing.array()[0].string() + "'");
}

bool Watcher::settingsChanged() {
    const SettingsFile &file = phone_.device().settings();
    std::string state = file.state();
    if (state == settingsState_) return false;
    settingsState_ = state;
    std::string problem;
    settings_ = file.read(&problem).value_or(Value());
    return true;
}

Array Watcher::takeSettingsEvents() {
    // One that crashed is gone, and its events tell so.
    const SettingsProcess *settings = phone_.lastSettings();
    if (settings != settingsProcess_) settingsEvents_ = 0;
    settingsProcess_ = settings;
    if (!settings) return {};
    Array events = settings->events().since(settingsEvents_);
    settingsEvents_ = settings->events().size();
    return events;
}

std::vector<std::string> Watcher::look(const std::string &call) {
    SimulatedDevice &device = phone_.device();
    if (generation_ != device.generation()) meetHomeScreen();
    Observation seen = reader_.read(
        device.ask("inspect", Object{{"item", device.package().statusBarItem}, {"since", reader_.since()}}));
    seen.spoken = spokenIn(device, seen);
    Array events = device.events().since(events_), settingsEvents = takeSettingsEvents();
    Value settingsBefore = settings_;
    bool changed = settingsChanged();
    bool pane = phone_.settings() != nullptr;
    std::optional<PaneSight> paneNow = paneReader_.look(phone_.settings());
    Moment moment{.before = last_ ? &*last_ : nullptr,
                  .now = seen,
                  .call = call,
                  .events = events,
                  .settingsEvents = settingsEvents,
                  .settingsBefore = settingsBefore,
                  .settings = settings_,
                  .settingsChanged = changed,
                  .pane = pane || pane_,
                  .device = device.options(),
                  .paneBefore = lastPane_,
                  .paneNow = paneNow,
                  .from = time_,
                  .to = device.now()};
    followPanel(moment, memory_);
    memory_.sceneBefore = memory_.scene;
    followScene(moment, memory_.scene);
    std::vector<std::string> findings;
    for (const Rule &rule : rules()) {
        Findings own;
        rule.check(moment, memory_, own);
        for (auto &sentence : own) findings.push_back(std::string(rule.name) + ": " + std::move(sentence));
    }
    events_ = device.events().size();
    time_ = moment.to;
    pane_ = pane;
    lastPane_ = std::move(paneNow);
    last_ = std::move(seen);
    return findings;
}

} // namespace sim
