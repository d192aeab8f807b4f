// What comes in, on its way from the network's thread to the one that takes it.
#pragma once

#include "WebServer.hpp"

#include <condition_variable>
#include <mutex>

namespace sim {

class Inbox {
public:
    void add(WebServer::Message message);
    // Whether too much of this client has not been taken.
    bool isFull(WebServer::Client client);
    // All there is, in order; see WebServer::receive.
    std::vector<WebServer::Message> take(WebServer::Time until, bool early);

private:
    std::mutex mutex_;
    std::condition_variable arrived_;
    std::vector<WebServer::Message> messages_;
    std::map<WebServer::Client, size_t> untaken_;
};

} // namespace sim
