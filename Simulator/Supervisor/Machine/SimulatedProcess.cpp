#include "SimulatedProcess.hpp"

namespace sim {

SimulatedProcess::SimulatedProcess(const ChildProcess::Setup &setup, EventListener listener)
    : child_(setup), listener_(std::move(listener)) {}

Reply SimulatedProcess::request(const char *name, Object arguments) {
    Object question;
    question.emplace("request", name);
    question.emplace("arguments", std::move(arguments));
    child_.channel().send(std::move(question));
    while (auto message = child_.channel().receive()) {
        Object &said = message->object();
        if (auto event = said.find("event"); event != said.end()) {
            listener_(std::move(event->second));
            continue;
        }
        if (message->has("error")) throw RequestError((*message)["error"].string());
        Reply reply{.result = std::move(said["result"]), .now = said["now"].integer()};
        if (message->has("next")) reply.next = said["next"].integer();
        reply.respring = message->has("respring");
        reply.locked = message->has("locked");
        return reply;
    }
    throw ProcessDied{child_.end()};
}

} // namespace sim
