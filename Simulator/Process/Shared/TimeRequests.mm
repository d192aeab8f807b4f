#include "Requests.h"
#include "Runtime/Time/Clock.hpp"
#include "Session.hpp"
#include "UIKit/QuartzCore/LayerState.h"
#include "UIKit/Touch/TouchInput.h"

namespace sim {

namespace {

// {"to": nanoseconds}. Stops early when the home screen is to be started anew.
Value advance(const Value &arguments) {
    Clock &clock = Clock::shared();
    Nanos target = arguments["to"].integer();
    for (auto due = clock.next(); due && *due <= target && !respringAsked(); due = clock.next()) {
        publishTime(*due);
        clock.advance(*due);
    }
    if (respringAsked()) return {};
    publishTime(target);
    clock.advance(target);
    return {};
}

// A sentence for each thing that is under way and will end.
Value busy(const Value &) {
    Array result;
    for (const auto &sentence : unfinishedAnimations()) result.emplace_back(sentence);
    for (const auto &sentence : ongoingInteractions()) result.emplace_back(sentence);
    return result;
}

} // namespace

std::span<const Request> timeRequests() {
    static const Request requests[] = {{"advance", advance}, {"busy", busy}};
    return requests;
}

} // namespace sim
