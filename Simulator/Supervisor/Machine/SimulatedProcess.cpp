#include "SimulatedProcess.hpp"

namespace sim {

SimulatedProcess::SimulatedProcess(const ChildProcess::Setup &setup, EventListener listener)
    : child_(setup), listener_(std::move(listener)) {}

Reply SimulatedProcess::request(const char *name, Object arguments) {
    child_.channel().send(Object{{"request", name}, {"arguments", std::move(arguments)}});
    while (auto message = child_.channel().receive()) {
        if (message->has("event")) {
            listener_((*message)["event"]);
            continue;
        }
        if (message->has("error")) throw RequestError((*message)["error"].string());
        Reply reply{.result = (*message)["result"], .now = (*message)["now"].integer()};
        if (message->has("next")) reply.next = (*message)["next"].integer();
        reply.respring = message->has("respring");
        reply.locked = message->has("locked");
        return reply;
    }
    throw ProcessDied{child_.end()};
}

} // namespace sim
