// The device behind the page: what is done to it is written down, and can be done again.
#pragma once

#include "Helpers.hpp"
#include "Journal.hpp"
#include "LivePhone.hpp"
#include "TouchPlace.hpp"

#include <memory>
#include <optional>

namespace sim {

class LiveDevice {
public:
    explicit LiveDevice(DeviceSetup setup) : setup_(std::move(setup)) {}

    // Starts a device afresh in place of the one that was. Throws BootError; when only the options were wrong
    // that one stays.
    void boot(const Value &options);
    // nullptr when it does not run; `trouble` says why.
    SimulatedDevice *device() { return phone_ ? &phone_->device() : nullptr; }
    // The screen that is shown and touched: the home screen's or that of Settings. nullptr when it does not
    // run.
    SimulatedScreen *screen();
    bool showsSettings() const { return settings_ && phone_ && phone_->settings(); }
    const std::string &trouble() const { return trouble_; }
    // Counts the calls of boot().
    unsigned boots() const { return boots_; }
    Journal &journal() { return *journal_; }
    int64_t now() const { return phone_ ? phone_->device().now() : 0; }
    // The way it is held: the argument of the last `rotate`.
    int64_t turned() const { return turned_; }
    const BootOptions &options() const { return phone_->device().options(); }

    // These throw CallError: the call was refused, or a replay is under way, or nothing runs.
    // Shows the other screen; Settings is opened when it does not run, and goes on behind the home screen.
    void show(bool settings);
    // Calls that people see on the home screen bring it back first.
    bool leavesSettings(const std::string &action) const;
    void perform(const std::string &action, const Array &arguments);
    // Gives where the touch landed: a finger near the middle of what has a name lands in its middle.
    TouchPlace touchDown(double x, double y, int64_t finger);
    void touchMove(double x, double y, int64_t finger);
    void touchUp(int64_t finger);
    // How a script finds what a person sees there: {"query", "class", "screen": its rectangle}; the query is
    // empty when nothing tells it from others, all is null where nothing is seen.
    Value pick(double x, double y);

    // Lets time pass until `to`, with what a replay does on the way.
    void advance(int64_t to);

    // Boots as the journal was begun and does all it holds again; the journal stays.
    void startReplay();
    bool replays() const { return replay_ != nullptr; }
    // How the replay that has just ended compares: empty when events and picture are the same, else a
    // sentence. Nothing when none has ended since the last call.
    std::optional<std::string> takeVerdict();

private:
    struct Replay {
        size_t next = 0; // step of the journal
        int64_t end = 0;
        Array events;
        render::Bitmap picture;
    };
    void start(const Value &options);
    void note(const std::string &call);
    void record(std::string call);
    const char *object() const { return showsSettings() ? "pane" : "phone"; }
    void checkReady() const;
    void replayUntil(int64_t to);
    void finishReplay();
    void guard(auto &&work);

    DeviceSetup setup_;
    std::unique_ptr<LivePhone> phone_;
    std::unique_ptr<Journal> journal_;
    std::optional<Helpers> helpers_; // of the journal
    std::unique_ptr<Replay> replay_;
    std::optional<std::string> verdict_;
    std::string trouble_ = "it has not been started";
    unsigned boots_ = 0;
    int64_t turned_ = 1;
    bool settings_ = false; // is to be shown while it runs
};

} // namespace sim
