#include "Inbox.hpp"

#include <utility>

namespace sim {

namespace {

constexpr size_t kMostUntaken = 512; // messages of a client

} // namespace

void Inbox::add(WebServer::Message message) {
    std::lock_guard lock(mutex_);
    if (message.kind == WebServer::Message::Kind::text) ++untaken_[message.client];
    messages_.push_back(std::move(message));
    arrived_.notify_one();
}

bool Inbox::isFull(WebServer::Client client) {
    std::lock_guard lock(mutex_);
    return untaken_[client] >= kMostUntaken;
}

std::vector<WebServer::Message> Inbox::take(WebServer::Time until, bool early) {
    std::unique_lock lock(mutex_);
    arrived_.wait_until(lock, until, [&] { return early && !messages_.empty(); });
    untaken_.clear();
    return std::exchange(messages_, {});
}

} // namespace sim
