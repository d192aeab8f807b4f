// Nothing went wrong that the platform itself notices, and nothing piles up.
#include "Names.hpp"
#include "Rules.hpp"

#include <algorithm>

namespace sim {

namespace {

// Remarks on what was done, not on what came of it.
bool isOnCaller(const std::string &warning) {
    const char *const starts[] = {"this device has no Reachability",
                                  "no listener '",
                                  "the device has no fingerprint sensor",
                                  "the touch on ",
                                  "the touched view is gone",
                                  "the settings file cannot be read",
                                  "the extension has no setting '"};
    return std::ranges::any_of(starts, [&](const char *start) { return warning.starts_with(start); });
}

bool tellsOfFailure(const std::string &line) {
    const char *const parts[] = {"Assertion", "assertion", "Uncaught exception",
                                 "NSInvalidArgumentException"};
    return std::ranges::any_of(parts, [&](const char *part) { return line.find(part) != std::string::npos; });
}

void checkEvent(const Value &event, const char *process, Findings &findings) {
    const std::string &kind = event["kind"].string();
    if (kind == "unrecognized")
        findings.push_back(event["class"].string() + " does not answer " + event["selector"].string());
    if (kind == "crash") findings.push_back(std::string(process) + " crashed: " + event["signal"].string());
    if (kind == "warning" && !isOnCaller(event["text"].string()))
        findings.push_back("a warning: " + event["text"].string());
    if (kind == "log" && tellsOfFailure(event["text"].string()))
        findings.push_back("the log says: " + event["text"].string());
}

// The system makes each of its windows once. Those of applications that make way for one another overlap for
// a while, and go then.
void checkWindows(const Moment &moment, Memory &memory, Findings &findings) {
    constexpr int64_t kMostOfAKind = 4, kOverlap = 2'000'000'000;
    auto crowd =
        std::ranges::find_if(moment.now.windows, [](const auto &kind) { return kind.second > kMostOfAKind; });
    if (crowd == moment.now.windows.end()) return memory.crowdedSince.reset();
    if (!memory.crowdedSince) memory.crowdedSince = moment.to;
    if (moment.to - *memory.crowdedSince > kOverlap)
        findings.push_back("there are " + std::to_string(crowd->second) + " windows of the kind " +
                           crowd->first);
}

} // namespace

void checkQuiet(const Moment &moment, Memory &memory, Findings &findings) {
    for (const auto &event : moment.events) checkEvent(event, "the home screen", findings);
    for (const auto &event : moment.settingsEvents) checkEvent(event, "Settings", findings);
    checkWindows(moment, memory, findings);
    // The recogniser on the dismiss view is the only one that stays.
    int64_t recognizers = 0;
    for (const auto &window : moment.now.overlays)
        for (size_t place : window.childrenOf(0))
            if (window.views[place].tag == names::dismissView ||
                window.views[place].tag == names::screenBackdrop)
                recognizers += window.views[place].recognizers;
    if (recognizers != 1)
        findings.push_back("the overlay's own views carry " + std::to_string(recognizers) + " recognisers");
}

} // namespace sim
