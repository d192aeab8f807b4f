#include "Session.hpp"

#include "Requests.h"
#include "Runtime/Process/Events.hpp"
#include "Runtime/Time/Clock.hpp"
#include "Supervisor/Protocol/Channel.hpp"
#include "Supervisor/Protocol/Descriptors.hpp"
#include "Supervisor/Protocol/SharedTime.hpp"

#include <utility>

namespace sim {

namespace {

bool respring = false;

// An error of Objective-C is no std::exception: it ends the process, as it would on a phone.
Value answer(const Value &request) {
    Object reply;
    try {
        reply.emplace("result", handleRequest(request["request"], request["arguments"]));
    } catch (const std::exception &error) {
        reply.emplace("error", error.what());
    }
    auto next = Clock::shared().next();
    reply.emplace("now", Clock::shared().now());
    reply.emplace("next", next ? Value(*next) : Value());
    if (std::exchange(respring, false)) reply.emplace("respring", true);
    addOwnState(reply);
    return reply;
}

} // namespace

void askForRespring() { respring = true; }
bool respringAsked() { return respring; }

void publishTime(int64_t nanoseconds) {
    static SharedTime time(kTimeDescriptor);
    time.set(nanoseconds);
}

void serve() {
    Channel channel(kChannelDescriptor);
    // Events go out as they happen, for the process may not live to the end of the request.
    // None is kept: a request may take a year, with a million of them.
    onEvent([&](const Value &event) {
        Object message;
        message.emplace("event", event);
        channel.send(std::move(message));
        takeEvents();
    });
    while (auto request = channel.receive()) channel.send(answer(*request));
    onEvent(nullptr);
}

} // namespace sim
