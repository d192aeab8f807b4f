#include "Requests.h"

#include "Runtime/Time/Clock.hpp"

#include <map>
#include <string>

namespace sim {

namespace {

const std::map<std::string, Request> &requests() {
    static const std::map<std::string, Request> table = [] {
        std::map<std::string, Request> all;
        auto families = ownRequests();
        for (auto family :
             {timeRequests(), touchRequests(), lookingRequests(), speakingRequests(), observingRequests()})
            families.push_back(family);
        for (auto family : families)
            for (const auto &request : family) all.emplace(request.name, request);
        return all;
    }();
    return table;
}

} // namespace

Value handleRequest(const Value &name, const Value &arguments) {
    auto found = requests().find(name.string());
    if (found == requests().end()) throw BadRequest("unknown request '" + name.string() + "'");
    @autoreleasepool {
        Value result = found->second.handle(arguments);
        Clock::shared().settleNow();
        return result;
    }
}

} // namespace sim
