// What must hold on a phone with the extension whatever was done to it: a rule a function, and the table of
// them.
#pragma once

#include "Memory.hpp"
#include "PaneSight.hpp"
#include "Scene.hpp"
#include "Supervisor/Boot/BootOptions.hpp"
#include "Tools/Monkey/Observation.hpp"

#include <span>

namespace sim {

// What there is to judge: the phone before and after one event.
struct Moment {
    const Observation *before; // nullptr for the first look at a home screen that has just been started
    const Observation &now;
    const std::string &call;                // what was done, as a script writes it
    const Array &events;                    // what happened in the home screen meanwhile
    const Array &settingsEvents;            // and in the Settings application
    const Value &settingsBefore, &settings; // the settings file: an object, null when it is none
    bool settingsChanged;                   // it was written, or removed, meanwhile
    bool pane;                              // the Settings application was open at some time
    const BootOptions &device;
    const std::optional<PaneSight> &paneBefore, &paneNow; // the Settings application
    int64_t from, to;                                     // virtual time in nanoseconds

    // How many lines with this text came to the log.
    int64_t logged(std::string_view text) const;
    // How often the replacement of a hooked method was entered.
    int64_t entered(std::string_view selector) const;
    bool restarted() const { return before == nullptr; }
};

using Findings = std::vector<std::string>;

struct Rule {
    const char *name;
    // Adds a sentence for each thing that is broken.
    void (*check)(const Moment &moment, Memory &memory, Findings &findings);
};

// In the order in which they are checked; followPanel() goes before them.
std::span<const Rule> rules();

// Keeps what `memory` knows of the panel up to date.
void followPanel(const Moment &moment, Memory &memory);

// Keeps what `memory` knows of badges, fingers and the panel's place up to date.
void followScene(const Moment &moment, SceneMemory &memory);

// The panel when it has stood still for a while under nobody's finger, upright on a screen that is on, and as
// the settings of now had it built; nothing otherwise.
std::optional<Scene> sceneAtRest(const Moment &moment, const SceneMemory &memory);

// The same of the moment before a line of one act and a wait of a second and a half, `then` being what was
// remembered.
std::optional<Scene> sceneBeforeAct(const Moment &moment, const SceneMemory &then, const SceneMemory &now);

void checkOnePanel(const Moment &moment, Memory &memory, Findings &findings);
void checkClosed(const Moment &moment, Memory &memory, Findings &findings);
void checkLocked(const Moment &moment, Memory &memory, Findings &findings);
void checkBehind(const Moment &moment, Memory &memory, Findings &findings);
void checkLists(const Moment &moment, Memory &memory, Findings &findings);
void checkIndicator(const Moment &moment, Memory &memory, Findings &findings);
void checkTimers(const Moment &moment, Memory &memory, Findings &findings);
void checkQuiet(const Moment &moment, Memory &memory, Findings &findings);
void checkHooks(const Moment &moment, Memory &memory, Findings &findings);
void checkGeometry(const Moment &moment, Memory &memory, Findings &findings);
void checkSettingsFile(const Moment &moment, Memory &memory, Findings &findings);
void checkContents(const Moment &moment, Memory &memory, Findings &findings);
void checkLayout(const Moment &moment, Memory &memory, Findings &findings);
void checkConsequences(const Moment &moment, Memory &memory, Findings &findings);
void checkFaces(const Moment &moment, Memory &memory, Findings &findings);
void checkLooks(const Moment &moment, Memory &memory, Findings &findings);
void checkFaceActs(const Moment &moment, Memory &memory, Findings &findings);
void checkMarks(const Moment &moment, Memory &memory, Findings &findings);
void checkSpeech(const Moment &moment, Memory &memory, Findings &findings);
void checkPane(const Moment &moment, Memory &memory, Findings &findings);
void checkGate(const Moment &moment, Memory &memory, Findings &findings);
void checkPaneLooks(const Moment &moment, Memory &memory, Findings &findings);

} // namespace sim
