// Looks at a phone after every event and knows what must hold whatever was done.
#pragma once

#include "Tools/Live/LivePhone.hpp"
#include "Tools/Monkey/Rules/Rules.hpp"

#include <optional>
#include <string>
#include <vector>

namespace sim {

class Watcher {
public:
    // Right after the boot. Throws std::runtime_error when the extension cannot be observed.
    explicit Watcher(LivePhone &phone);

    // What is broken after `call` (a contract call as a script writes it), a sentence each that begins with
    // the name of its rule and a colon; empty when all is well.
    std::vector<std::string> look(const std::string &call);
    // The Settings application as it was at that look; nothing when none was open.
    const std::optional<PaneSight> &pane() const { return lastPane_; }

private:
    void meetHomeScreen();
    bool settingsChanged();
    Array takeSettingsEvents();

    LivePhone &phone_;
    unsigned generation_ = 0;
    ObservationReader reader_;
    std::optional<Observation> last_;
    Memory memory_;
    size_t events_ = 0; // how many of them have been judged
    const SettingsProcess *settingsProcess_ = nullptr;
    size_t settingsEvents_ = 0; // of that process
    int64_t time_ = 0;
    std::string settingsState_;
    Value settings_;
    bool pane_ = false;
    PaneReader paneReader_;
    std::optional<PaneSight> lastPane_;
};

} // namespace sim
