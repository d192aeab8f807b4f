// What the rules remember from one event to the next. All of it begins anew with the home screen.
#pragma once

#include "Gate.hpp"
#include "LockModel.hpp"
#include "SceneMemory.hpp"

#include <cstdint>
#include <optional>
#include <set>
#include <string>

namespace sim {

// The panel's closing in nanoseconds: the slow animation, and a frame or two.
constexpr int64_t kClosing = 550'000'000;

// The watched settings as the extension's poll has applied them.
struct AppliedSettings {
    bool enable = false, hide = false, onlyWithBadges = false;
    bool operator==(const AppliedSettings &) const = default;
};

// The timers of one kind.
struct TimerMemory {
    int64_t running = 0;                   // at the last look
    int64_t pending = 0, pendingUntil = 0; // how many have been started and were not seen yet, and until when
    std::optional<int64_t> unwantedSince;  // since when nothing needs them
};

// What can be done to applications through a panel that is locked.
struct BehindMemory {
    std::optional<int64_t> guardedSince; // since when the panel is open and surely locked, at every look
    std::set<int64_t> strangers;         // fingers that went down while no panel was open
    int64_t elsewhereUntil = 0;          // a banner, or the end of the lock screen, may open an application
};

// The Settings application.
struct PaneMemory {
    bool mixed = false;               // somebody else changed the settings while it was open
    std::optional<std::string> typed; // into the sheet that is there, as far as it is known
    std::optional<std::string> newCode;
    std::optional<std::string> colours; // the key of the setting whose colours are shown
};

struct Memory {
    SceneMemory scene, sceneBefore; // now, and as of the event before

    // The panel, by the log. Times are virtual, in nanoseconds.
    bool shown = false;
    int64_t closedAt = INT64_MIN / 2; // when it was asked to close last

    LockModel lock; // not by the log
    BehindMemory behind;

    // Applications that have a badge and rightly are not listed.
    std::set<std::string> unlisted;

    std::optional<bool> visible; // the indicator, when it was seen last
    std::optional<AppliedSettings> applied;
    bool dark = false; // the display is off, by the hooks that ran

    TimerMemory pulses, followers;
    int64_t observers = 0; // of the finger's monitor

    std::optional<int64_t> restingSince; // since when nothing of the panel has moved, at every look
    // While this panel was shown the indicator was away, or other settings came to place it.
    bool adrift = false;

    int dull = 0; // looks in a row, each a while after the last, at which a pulse had no glow

    std::optional<int64_t> crowdedSince; // since when there are many windows of one kind, at every look

    int64_t settingsWrites = 0;

    PaneMemory pane;
    GateModel gate;
};

} // namespace sim
