#include "Rules.hpp"

namespace sim {

int64_t Moment::logged(std::string_view text) const {
    int64_t count = 0;
    for (const auto &event : events)
        if (event["kind"] == Value("log") && event["text"].string() == text) ++count;
    return count;
}

int64_t Moment::entered(std::string_view selector) const {
    int64_t count = 0;
    for (const auto &hook : now.hooks)
        if (hook.selector == selector) count += hook.entered;
    return count;
}

std::span<const Rule> rules() {
    static const Rule table[] = {
        {"one panel", checkOnePanel},
        {"closed", checkClosed},
        {"locked", checkLocked},
        {"behind the lock", checkBehind},
        {"lists", checkLists},
        {"indicator", checkIndicator},
        {"timers", checkTimers},
        {"quiet", checkQuiet},
        {"hooks", checkHooks},
        {"geometry", checkGeometry},
        {"settings", checkSettingsFile},
        {"contents", checkContents},
        {"layout", checkLayout},
        {"acts", checkConsequences},
        {"faces", checkFaces},
        {"looks", checkLooks},
        {"face acts", checkFaceActs},
        {"marks", checkMarks},
        {"gate", checkGate},
        {"pages", checkPane},
        {"page looks", checkPaneLooks},
        {"speech", checkSpeech},
    };
    return table;
}

} // namespace sim
